#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace quillon {

/// The distance, in pixels, between the panel and the icon, and the panel and the screen's edges.
inline constexpr int panelGap = 6;

/// The place of a panel of this size at the icon in the desktop's panel: below or above the icon,
/// or beside it if the desktop's panel is vertical, and centred on it as far as the room allows.
/// `screen` is the whole screen, and `room` the part that the desktop's own panels leave of it.
[[nodiscard]] QRect panelBesideIcon(QSize panel, const QRect& icon, const QRect& screen,
                                    const QRect& room);

/// The place of the panel if the place of the icon is unknown: in the corner of the room nearest to
/// the pointer, which has just clicked the icon.
[[nodiscard]] QRect panelInCorner(QSize panel, QPoint pointer, const QRect& room);

} // namespace quillon
