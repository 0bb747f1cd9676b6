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

/// The shadow of a capsule in a picture of the given size. It always fades to nothing towards the
/// picture's edges. Kept in Qt's pixmap cache.
QPixmap capsuleShadow(QSize size, const QRectF& capsule, const Shadow& shadow,
                      double devicePixelRatio);

} // namespace quillon
