#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace quillon {

/// Paints the application's mark, as large as fits into the frame and centred in it: a phone, and
/// the thing just copied on its way into it, in the accent colour.
void paintMark(QPainter& painter, const QRectF& frame, QColor phone, QColor accent);

} // namespace quillon
