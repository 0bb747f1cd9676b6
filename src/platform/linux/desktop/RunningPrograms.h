#pragma once

#include <filesystem>
#include <vector>

namespace quillon {

/// The executables of this user's processes, this one included. A program that keeps out of core
/// dumps shows nobody but root what it was made of; of those it is the absolute path they were
/// started by, links followed, if any.
[[nodiscard]] std::vector<std::filesystem::path> runningPrograms();

/// Lets runningPrograms() of others find this process if it is an application folder's: starts it
/// over by its absolute path, unless that is how it was started. To be called first of all. Returns
/// also when that is not possible.
void runByAbsolutePath(char** argv);

} // namespace quillon
