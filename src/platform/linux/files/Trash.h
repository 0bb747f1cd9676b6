#pragma once

#include <filesystem>

namespace quillon {

/// Moves the item to the user's trash as the freedesktop.org trash standard 1.0 has it: the
/// one in `data` (XDG_DATA_HOME) for what lies on the same file system, that of the file system's
/// top folder for everything else; where there can be none, a copy goes to the first. May take
/// long. False when the item stays where it is.
[[nodiscard]] bool moveToTrash(const std::filesystem::path& item,
                               const std::filesystem::path& data);

} // namespace quillon
