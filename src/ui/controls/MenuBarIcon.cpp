#include "ui/controls/MenuBarIcon.h"

#include "artwork/MarkGeometry.h"

#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <array>

namespace quillon::MenuBarIcon {
namespace {

using namespace MarkGeometry;

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
    painter.drawRoundedRect(phone, cornerRadius, cornerRadius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(tint);
    painter.drawRoundedRect(contentBar, cornerRadius, cornerRadius);
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
