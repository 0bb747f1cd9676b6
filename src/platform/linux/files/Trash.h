#pragma once

#include <filesystem>

namespace quillon {

/// Moves the item to the user's trash, by the freedesktop.org trash standard 1.0. An item on the
/// file system of `data` (XDG_DATA_HOME) goes to the trash there, any other to the trash in the top
/// folder of its own file system; if there can be none, a copy goes to the trash in `data`. May
/// take long. False if the item stays where it is. (Qt's own trash takes no name that is not UTF-8,
/// and GIO's refuses file systems such as tmpfs.)
[[nodiscard]] bool moveToTrash(const std::filesystem::path& item,
                               const std::filesystem::path& data);

} // namespace quillon
