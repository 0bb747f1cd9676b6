#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// What the environment tells of the desktop session that a shortcut is wanted in.
struct FoundSession {
    bool wayland = false;
    /// What the desktop calls itself, in small letters, the most exact name first.
    std::vector<std::string> desktops{};

    [[nodiscard]] bool isDesktop(std::string_view name) const;
};

/// Whether it is a Wayland session, by the values of XDG_SESSION_TYPE and WAYLAND_DISPLAY. A
/// session that says neither is one of X11, and so is one that says so, whatever display is left in
/// the environment.
[[nodiscard]] bool isWaylandSession(std::string_view type, std::string_view display);

/// The session that this process runs in.
[[nodiscard]] FoundSession foundSession();

} // namespace quillon
