#pragma once

#include <QColor>
#include <QIcon>

/// The icon in the desktop's panel: the mark in the colour of the panel's own icons.
namespace quillon::MenuBarIcon {

/// The icon in every size that panels ask for, as squares. Hosts of trays take the icon of that
/// name from the icon theme instead, where there is a name.
[[nodiscard]] QIcon image(QColor tint, const QString& name = {});

} // namespace quillon::MenuBarIcon
