#include "ui/controls/PaintedIcon.h"

#include <QPainter>
#include <QPixmap>

#include <utility>

namespace quillon {

PaintedIcon::PaintedIcon(Paint paint, std::initializer_list<int> sides, QString name)
    : paint_{std::move(paint)},
      name_{std::move(name)} {
    for (const int side : sides)
        sizes_.append({side, side});
}

void PaintedIcon::paint(QPainter* painter, const QRect& rect, QIcon::Mode /*mode*/,
                        QIcon::State /*state*/) {
    paint_(*painter, QRectF{rect});
}

QPixmap PaintedIcon::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
    QPixmap pixmap{size};
    pixmap.fill(Qt::transparent);
    QPainter painter{&pixmap};
    paint(&painter, pixmap.rect(), mode, state);
    return pixmap;
}

QList<QSize> PaintedIcon::availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) {
    return sizes_;
}

} // namespace quillon
