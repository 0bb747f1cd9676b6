#pragma once

#include <QColor>
#include <QIcon>
#include <QRectF>

class QPainter;

/// The icon in the desktop's panel: the mark in one colour, that of the panel's own icons.
namespace quillon::MenuBarIcon {

/// The canvas that it is drawn on.
inline constexpr QSizeF canvas{20, 16};

/// Draws it in one colour, as large as fits into the frame and centred in it.
void paint(QPainter& painter, const QRectF& frame, QColor tint);

/// The icon in every size that panels ask for, as squares.
[[nodiscard]] QIcon image(QColor tint);

} // namespace quillon::MenuBarIcon
