#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

/// The application's mark: a phone, and the thing just copied on its way into it. It is painted as
/// large as fits into the frame, and centred there.
namespace quillon {

/// The mark in two colours.
void paintMark(QPainter& painter, const QRectF& frame, QColor phone, QColor accent);

/// The simpler mark for small sizes and a single colour.
void paintPlainMark(QPainter& painter, const QRectF& frame, QColor ink);

} // namespace quillon
