#pragma once

#include "platform/HotKeys.h"
#include "platform/linux/shortcut/FoundSession.h"

#include <filesystem>
#include <string>

namespace quillon {

/// What came of asking the desktop's portal for the shortcut.
enum class PortalAnswer {
    awaited,
    bound,
    unassigned, ///< it has the shortcut, without keys
    declined,   ///< by the user
    failed,
    missing, ///< there is no portal, or none for shortcuts
    silent,  ///< it has not answered in time, and still may
    gone,    ///< it has ended, and is awaited again
};

struct PortalReport {
    PortalAnswer answer = PortalAnswer::awaited;
    /// The keys in the desktop's words; empty where it told none.
    std::string trigger{};
    /// Whether it has a dialog of its own for the keys of this program.
    bool canConfigure = false;
};

/// What was found of GNOME's own key bindings.
struct BindingReport {
    enum class Outcome {
        awaited,
        missing, ///< there are no such settings here
        absent,
        present, ///< and runs this program
        taken    ///< another binding has the keys
    };
    Outcome outcome = Outcome::awaited;
    /// The keys of the binding that is present, as the user may have changed them.
    std::string trigger{};
};

/// The way on which the shortcut comes, or would come, to the program.
[[nodiscard]] ShortcutWay shortcutWay(const FoundSession& session, PortalAnswer answer);

/// What has become of the shortcut in a Wayland session. `executable` is the program's path.
[[nodiscard]] HotKeyState shortcutState(const FoundSession& session, const PortalReport& portal,
                                        const BindingReport& binding, PhysicalKey key,
                                        const std::filesystem::path& executable);

} // namespace quillon
