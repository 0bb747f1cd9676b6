#pragma once

#include <sys/stat.h>

namespace quillon {

// Files and folders that the program makes are accessible to their owner alone.
inline constexpr mode_t ownersFile = S_IRUSR | S_IWUSR; // 0600
inline constexpr mode_t ownersFolder = S_IRWXU;         // 0700

} // namespace quillon
