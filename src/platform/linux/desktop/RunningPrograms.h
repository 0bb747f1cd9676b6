#pragma once

#include <filesystem>
#include <vector>

namespace quillon {

/// The executables of this user's processes, this one included. Only root may see the executable of
/// a program that keeps out of core dumps; for those this gives the absolute path by which they
/// were started, links resolved, if it was absolute. The session bus would tell of fewer: a program
/// that still offers to move has no name there, other sessions have a bus of their own, and a
/// program stays where there is no bus, too.
[[nodiscard]] std::vector<std::filesystem::path> runningPrograms();

/// Lets runningPrograms() of other processes find this one if it belongs to an application folder:
/// restarts it by its absolute path, unless it was started by that. A process may write over the
/// arguments that the system shows, but has no room there for a longer path. Call it first of all.
/// Also returns if the restart fails.
void runByAbsolutePath(char** argv);

} // namespace quillon
