#include "ui/panel/PanelPlacement.h"

#include <algorithm>

namespace quillon {

namespace {

/// Moves the panel into the room. The top left corner is inside even if the panel is too large.
QRect movedInto(QRect panel, const QRect& room) {
    panel.moveRight(std::min(panel.right(), room.right()));
    panel.moveBottom(std::min(panel.bottom(), room.bottom()));
    panel.moveLeft(std::max(panel.left(), room.left()));
    panel.moveTop(std::max(panel.top(), room.top()));
    return panel;
}

} // namespace

QRect panelBesideIcon(QSize panel, const QRect& icon, const QRect& screen, const QRect& room) {
    const QRect inner = room.adjusted(panelGap, panelGap, -panelGap, -panelGap);
    QRect frame{{}, panel};
    frame.moveCenter(icon.center());
    // The desktop's panel is not part of the room, which tells on which side of the screen it lies.
    if (icon.center().x() < room.left()) {
        frame.moveLeft(room.left() + panelGap);
    } else if (icon.center().x() > room.right()) {
        frame.moveRight(room.right() - panelGap);
    } else if (icon.center().y() < screen.center().y()) {
        frame.moveTop(icon.bottom() + 1 + panelGap);
    } else {
        frame.moveBottom(icon.top() - 1 - panelGap);
    }
    return movedInto(frame, inner);
}

QRect panelInCorner(QSize panel, QPoint pointer, const QRect& room) {
    const QRect inner = room.adjusted(panelGap, panelGap, -panelGap, -panelGap);
    QRect frame{inner.topLeft(), panel};
    if (pointer.x() > room.center().x()) frame.moveRight(inner.right());
    if (pointer.y() > room.center().y()) frame.moveBottom(inner.bottom());
    return movedInto(frame, inner);
}

} // namespace quillon
