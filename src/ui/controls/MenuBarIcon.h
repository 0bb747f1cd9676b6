#pragma once

#include <QColor>
#include <QIcon>

/// The icon in the desktop's panel: the mark in the colour of the panel's own icons.
namespace quillon::MenuBarIcon {

/// The icon in every size that panels ask for, as squares.
[[nodiscard]] QIcon image(QColor tint);

} // namespace quillon::MenuBarIcon
