#pragma once

class QWindow;

namespace quillon {

/// Brings a visible window to the front and gives it the focus, even where the window manager keeps
/// programs from taking it. Only for a window that the user has just asked for.
void bringToFront(QWindow& window);

} // namespace quillon
