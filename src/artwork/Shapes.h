#pragma once

#include <QPainterPath>
#include <QRectF>

namespace quillon {

/// A box with round corners.
[[nodiscard]] inline QPainterPath roundedPath(const QRectF& box, double radius) {
    QPainterPath path;
    path.addRoundedRect(box, radius, radius);
    return path;
}

/// A box with round ends.
[[nodiscard]] inline QPainterPath capsulePath(const QRectF& box) {
    return roundedPath(box, box.height() / 2);
}

} // namespace quillon
