#pragma once

#include "platform/Folders.h"

namespace quillon {

/// The folders of the user who runs this process, by freedesktop.org's base directory variables. A
/// variable with a relative path or a ".." counts as not set.
[[nodiscard]] Folders linuxFolders();

/// The name of the folder of the program's data, below `Folders::data`.
inline constexpr const char* dataFolderName = "Quillon";

} // namespace quillon
