#pragma once

class QScreen;
class QWindow;

namespace quillon {

/// The screen on which the middle of the active window is; null where the window manager names no
/// such window.
[[nodiscard]] QScreen* screenOfActiveWindow();

/// Keeps a window out of the lists of windows that task bars and pagers show. To be called each
/// time before the window shows: window managers forget it of a window that they take away.
void keepOffTaskBar(QWindow& window);

/// Whether a button of the pointer is held down, in whichever window; false where Qt is not on an X
/// server.
[[nodiscard]] bool pointerPressed();

} // namespace quillon
