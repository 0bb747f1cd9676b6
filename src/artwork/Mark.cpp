#include "artwork/Mark.h"

#include "artwork/Shapes.h"

#include <QLineF>
#include <QPainter>

#include <algorithm>
#include <array>

namespace quillon {
namespace {

// The mark is designed on a canvas of 20 by 16 units, with y growing downwards.
constexpr QRectF phone{10.86, 1.54, 5.78, 12.92};
constexpr QRectF homeLine{12.85, 11.75, 1.80, 0.75};
constexpr QRectF contentBar{5.42, 6.30, 7.82, 3.40};
constexpr std::array motion{QLineF{2.36, 6.81, 4.06, 6.81}, QLineF{3.04, 9.19, 4.40, 9.19}};
constexpr double cornerRadius = 1.7;
constexpr double phoneWidth = 1.5;
constexpr double motionWidth = 1.3;
constexpr double gap = 0.7; // between the bar and the outline of the phone that it enters
/// What the mark covers of the canvas, line widths included. It is not centred there.
constexpr QRectF extent{1.71, 0.79, 15.68, 14.42};

/// The phone's outline, open at its left where the bar enters.
QPainterPath openPhone() {
    const double corner = 2 * cornerRadius;
    const double left = phone.left();
    const double right = phone.right() - corner;
    const double top = phone.top();
    const double bottom = phone.bottom() - corner;
    QPainterPath path;
    path.moveTo(left, contentBar.top() - gap);
    path.arcTo(left, top, corner, corner, 180, -90);
    path.arcTo(right, top, corner, corner, 90, -90);
    path.arcTo(right, bottom, corner, corner, 0, -90);
    path.arcTo(left, bottom, corner, corner, -90, -90);
    path.lineTo(left, contentBar.bottom() + gap);
    return path;
}

void paint(QPainter& painter, const QRectF& frame, const QPainterPath& outline, QColor ink,
           QColor accent) {
    const double scale = std::min(frame.width() / extent.width(), frame.height() / extent.height());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(frame.center());
    painter.scale(scale, scale);
    painter.translate(-extent.center());
    painter.strokePath(outline, QPen{ink, phoneWidth, Qt::SolidLine, Qt::FlatCap});
    painter.fillPath(roundedPath(contentBar, cornerRadius), accent);
    painter.setPen(QPen{accent, motionWidth, Qt::SolidLine, Qt::RoundCap});
    painter.drawLines(motion.data(), static_cast<int>(motion.size()));
}

} // namespace

void paintMark(QPainter& painter, const QRectF& frame, QColor ink, QColor accent) {
    painter.save();
    paint(painter, frame, openPhone(), ink, accent);
    painter.fillPath(capsulePath(homeLine), ink);
    painter.restore();
}

void paintPlainMark(QPainter& painter, const QRectF& frame, QColor ink) {
    painter.save();
    paint(painter, frame, roundedPath(phone, cornerRadius), ink, ink);
    painter.restore();
}

} // namespace quillon
