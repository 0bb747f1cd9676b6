#pragma once

#include "platform/HotKeys.h"
#include "platform/linux/shortcut/FoundSession.h"

#include <filesystem>
#include <optional>
#include <string>

namespace quillon {

/// A line that binds the shortcut in a compositor's own configuration.
struct CompositorLine {
    /// The line, which runs the program by its absolute path.
    std::string line;
    /// The file it belongs into, as the compositor's documentation names it.
    std::string file;
};

/// The line for the session's compositor; none for one that keeps its bindings elsewhere.
[[nodiscard]] std::optional<CompositorLine> compositorLine(const FoundSession& session,
                                                           PhysicalKey key,
                                                           const std::filesystem::path& executable);

/// The command that sends, as a shell and desktops with key bindings of their own take it.
[[nodiscard]] std::string sendCommand(const std::filesystem::path& executable);

/// The key's letter, small.
[[nodiscard]] char letterOf(PhysicalKey key);

} // namespace quillon
