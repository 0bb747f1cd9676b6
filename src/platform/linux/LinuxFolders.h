#pragma once

#include "platform/Folders.h"

namespace quillon {

/// The folders of the user who runs this process, by freedesktop.org's base directory variables. A
/// variable with a relative path or a ".." counts as not set.
[[nodiscard]] Folders linuxFolders();

} // namespace quillon
