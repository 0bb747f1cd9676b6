#include "artwork/Mark.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace quillon {
namespace {

// The mark is drawn on a canvas of 20 by 16 units; these are the lines it is made of.
constexpr QRectF phoneLine{10.86, 1.54, 5.78, 12.92};
constexpr QRectF contentBar{5.42, 6.30, 7.82, 3.40};
constexpr QRectF homeLine{12.85, 11.75, 1.80, 0.75};
constexpr double cornerRadius = 1.7;
constexpr double phoneWidth = 1.5;
constexpr double motionWidth = 1.3;
constexpr double gap = 0.7;                        // keeps the bar apart from the phone it enters
constexpr QRectF extent{1.71, 0.79, 15.68, 14.42}; // all of it, line widths included

QPainterPath rounded(const QRectF& box, double radius) {
    QPainterPath path;
    path.addRoundedRect(box, radius, radius);
    return path;
}

/// The phone's outline, open at its left where the bar enters.
QPainterPath phoneOutline() {
    const double corner = 2 * cornerRadius;
    const double left = phoneLine.left();
    const double right = phoneLine.right() - corner;
    const double top = phoneLine.top();
    const double bottom = phoneLine.bottom() - corner;
    QPainterPath path;
    path.moveTo(left, contentBar.top() - gap);
    path.arcTo(left, top, corner, corner, 180, -90);
    path.arcTo(right, top, corner, corner, 90, -90);
    path.arcTo(right, bottom, corner, corner, 0, -90);
    path.arcTo(left, bottom, corner, corner, -90, -90);
    path.lineTo(left, contentBar.bottom() + gap);
    return path;
}

QPainterPath motionLines() {
    QPainterPath path;
    path.moveTo(2.36, 6.81);
    path.lineTo(4.06, 6.81);
    path.moveTo(3.04, 9.19);
    path.lineTo(4.40, 9.19);
    return path;
}

} // namespace

void paintMark(QPainter& painter, const QRectF& frame, QColor phone, QColor accent) {
    const double scale = std::min(frame.width() / extent.width(), frame.height() / extent.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(frame.center());
    painter.scale(scale, scale);
    painter.translate(-extent.center());
    painter.strokePath(phoneOutline(), QPen{phone, phoneWidth, Qt::SolidLine, Qt::FlatCap});
    painter.fillPath(rounded(homeLine, homeLine.height() / 2), phone);
    painter.fillPath(rounded(contentBar, cornerRadius), accent);
    painter.strokePath(motionLines(), QPen{accent, motionWidth, Qt::SolidLine, Qt::RoundCap});
    painter.restore();
}

} // namespace quillon
