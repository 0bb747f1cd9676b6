#pragma once

#include "platform/Folders.h"

#include <filesystem>

namespace quillon {

/// The file name of the program's desktop entries.
inline constexpr const char* desktopEntryName = "dev.vostrel.quillon.desktop";

/// Writes the entry by which desktops list the application; it starts this application folder's
/// program. A failure is ignored.
void writeApplicationEntry(const Folders& folders, const std::filesystem::path& application);
/// Removes that entry.
void removeApplicationEntry(const Folders& folders);

} // namespace quillon
