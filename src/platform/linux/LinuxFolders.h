#pragma once

#include "platform/Folders.h"

namespace quillon {

/// The folders of the user who runs this process, where freedesktop.org puts them. A variable that
/// is relative, or that leads back up by "..", counts as not set.
[[nodiscard]] Folders linuxFolders();

} // namespace quillon
