#pragma once

namespace quillon::test {

/// Presses Control, Alt and the key V of a US keyboard that it plugs into the Wayland compositor,
/// as virtual-keyboard-unstable-v1 lets a program do.
void pressControlAltV();

} // namespace quillon::test
