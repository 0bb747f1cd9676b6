#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace quillon {

/// How far the panel stays from the icon and from the edges of the screen, in pixels.
inline constexpr int panelGap = 6;

/// Where a panel of this size hangs from the icon in the desktop's panel: below or above it, or
/// beside it where the desktop's panel stands upright, centred on it as far as the room allows.
/// `screen` is the whole screen, `room` what the desktop's own panels leave of it.
[[nodiscard]] QRect panelBesideIcon(QSize panel, const QRect& icon, const QRect& screen,
                                    const QRect& room);

/// Where it opens when nobody knows where the icon is: in that corner of the room that is nearest
/// to the pointer, which has just clicked the icon.
[[nodiscard]] QRect panelInCorner(QSize panel, QPoint pointer, const QRect& room);

} // namespace quillon
