#include "artwork/Mark.h"

#include "artwork/MarkGeometry.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace quillon {
namespace {

using namespace MarkGeometry;

constexpr QRectF homeLine{12.85, 11.75, 1.80, 0.75};
constexpr double gap = 0.7; // keeps the bar apart from the phone it enters

QPainterPath rounded(const QRectF& box, double radius) {
    QPainterPath path;
    path.addRoundedRect(box, radius, radius);
    return path;
}

/// The phone's outline, open at its left where the bar enters.
QPainterPath phoneOutline() {
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

} // namespace

void paintMark(QPainter& painter, const QRectF& frame, QColor ink, QColor accent) {
    const double scale = std::min(frame.width() / extent.width(), frame.height() / extent.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(frame.center());
    painter.scale(scale, scale);
    painter.translate(-extent.center());
    painter.strokePath(phoneOutline(), QPen{ink, phoneWidth, Qt::SolidLine, Qt::FlatCap});
    painter.fillPath(rounded(homeLine, homeLine.height() / 2), ink);
    painter.fillPath(rounded(contentBar, cornerRadius), accent);
    painter.setPen(QPen{accent, motionWidth, Qt::SolidLine, Qt::RoundCap});
    painter.drawLines(motion.data(), static_cast<int>(motion.size()));
    painter.restore();
}

} // namespace quillon
