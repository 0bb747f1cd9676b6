#include "ui/views/MenuBarIcon.h"

#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <array>

namespace quillon::MenuBarIcon {
namespace {

constexpr QRectF phone{10.86, 1.54, 5.78, 12.92};
constexpr QRectF content{5.42, 6.30, 7.82, 3.40};
constexpr double radius = 1.7;
constexpr double phoneWidth = 1.5;
constexpr double motionWidth = 1.3;
constexpr std::array motion{QLineF{2.36, 6.81, 4.06, 6.81}, QLineF{3.04, 9.19, 4.40, 9.19}};
/// All of it, line widths included: what is drawn need not be centred on the canvas.
constexpr QRectF extent{1.71, 0.79, 15.68, 14.42};

/// Sides in pixels of what panels show, at scale factors from 1 to 3.
constexpr std::array sides{16, 22, 24, 32, 44, 48, 64};

} // namespace

void paint(QPainter& painter, const QRectF& frame, QColor tint) {
    const double scale = std::min(frame.width() / extent.width(), frame.height() / extent.height());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(frame.center());
    painter.scale(scale, scale);
    painter.translate(-extent.center());
    painter.setPen(QPen{tint, phoneWidth});
    painter.drawRoundedRect(phone, radius, radius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(tint);
    painter.drawRoundedRect(content, radius, radius);
    painter.setPen(QPen{tint, motionWidth, Qt::SolidLine, Qt::RoundCap});
    painter.drawLines(motion.data(), static_cast<int>(motion.size()));
    painter.restore();
}

QIcon image(QColor tint) {
    QIcon icon;
    for (const int side : sides) {
        QPixmap pixmap{side, side};
        pixmap.fill(Qt::transparent);
        QPainter painter{&pixmap};
        const double margin = side / 16.0;
        paint(painter, QRectF{pixmap.rect()}.adjusted(margin, margin, -margin, -margin), tint);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace quillon::MenuBarIcon
