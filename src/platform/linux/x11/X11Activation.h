#pragma once

class QWindow;

namespace quillon {

/// Gives a window that shows the focus, in front of all others. For what the user has asked for in
/// this moment: window managers that keep programs from taking the focus let this pass.
void bringToFront(QWindow& window);

} // namespace quillon
