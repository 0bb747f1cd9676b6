#pragma once

#include "platform/Pasteboard.h"

namespace quillon {

class Compositor;

/// The ways that the services of the session go, as far as they differ between desktops.
struct DesktopWays {
    enum class Session { x11, wayland };
    enum class Banner {
        window, ///< of an X server, or of the compositor where there is none
        layer,  ///< a surface over all windows, by the layer shell
    };

    Session session = Session::x11;
    ClipboardWay clipboard = ClipboardWay::none;
    Banner banner = Banner::window;
};

/// Those of a process that has opened its desktop.
[[nodiscard]] DesktopWays desktopWays(const Pasteboard& pasteboard, const Compositor& compositor);

/// Those that a process would find that opened its desktop now. Takes milliseconds, or a second
/// where a compositor does not answer.
[[nodiscard]] DesktopWays probeDesktop();

} // namespace quillon
