#include "ui/controls/MenuBarIcon.h"

#include "artwork/Mark.h"

#include <QPainter>
#include <QPixmap>

#include <array>

namespace quillon::MenuBarIcon {
namespace {

/// The sides, in pixels, that panels show at scale factors from 1 to 3.
constexpr std::array sides{16, 22, 24, 32, 44, 48, 64};

} // namespace

QIcon image(QColor tint) {
    QIcon icon;
    for (const int side : sides) {
        QPixmap pixmap{side, side};
        pixmap.fill(Qt::transparent);
        QPainter painter{&pixmap};
        const double margin = side / 16.0;
        paintPlainMark(painter, QRectF{pixmap.rect()}.adjusted(margin, margin, -margin, -margin),
                       tint);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace quillon::MenuBarIcon
