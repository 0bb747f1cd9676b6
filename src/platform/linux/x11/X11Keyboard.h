#pragma once

#include "platform/HotKeys.h"

#include <xcb/xcb.h>

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace quillon {

/// The parts of an X server's keyboard configuration that hot keys need: the codes of the keys and
/// the meanings of the modifiers. It changes when the user chooses another layout or plugs in
/// another keyboard.
struct X11Keyboard {
    /// The key codes of V, P and C.
    std::array<xcb_keycode_t, 3> codes{};
    /// Control and Alt with every combination of the locks: Caps Lock, Num Lock, Scroll Lock.
    std::vector<std::uint16_t> modifiers;
    /// A held key repeats within this time after a press or a repetition, in milliseconds.
    std::uint32_t repeatPause = 0;

    [[nodiscard]] xcb_keycode_t code(PhysicalKey key) const {
        return codes.at(static_cast<std::size_t>(key));
    }

    /// Asks the server and waits for its answers; none if it is gone.
    [[nodiscard]] static std::optional<X11Keyboard> read(xcb_connection_t* connection);
};

} // namespace quillon
