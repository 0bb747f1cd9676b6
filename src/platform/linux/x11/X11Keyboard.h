#pragma once

#include "platform/HotKeys.h"

#include <xcb/xcb.h>

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace quillon {

/// What matters to hot keys of the keyboard as an X server has it set up: where the keys lie and
/// which modifiers mean what. It changes when the user chooses another layout or plugs another
/// keyboard in.
struct X11Keyboard {
    /// The key codes of V, P and C.
    std::array<xcb_keycode_t, 3> codes{};
    /// Control and Alt with every combination of the locks: Caps Lock, Num Lock, Scroll Lock.
    std::vector<std::uint16_t> modifiers;
    /// How long after a press, and then after each repetition, a held key may take to repeat, in
    /// milliseconds.
    std::uint32_t repeatPause = 0;

    [[nodiscard]] xcb_keycode_t code(PhysicalKey key) const {
        return codes.at(static_cast<std::size_t>(key));
    }

    /// Asks the server, and waits for its answers; none when it is gone.
    [[nodiscard]] static std::optional<X11Keyboard> read(xcb_connection_t* connection);
};

} // namespace quillon
