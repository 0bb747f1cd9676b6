#pragma once

#include <QPixmap>
#include <QPointF>
#include <QRectF>

namespace quillon {

/// A soft black shadow, in device-independent pixels.
struct Shadow {
    double opacity;
    double blur; // twice the standard deviation of the Gaussian, as style sheets count it
    QPointF offset;
};

/// The shadow of a capsule inside a picture of the given size. It fades to nothing before the edge
/// of the picture, however little room there is. Kept in Qt's pixmap cache.
QPixmap capsuleShadow(QSize size, const QRectF& capsule, const Shadow& shadow,
                      double devicePixelRatio);

} // namespace quillon
