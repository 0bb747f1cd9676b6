#pragma once

#include <filesystem>

namespace quillon {

/// Starts the application folder's program as soon as this process has ended, in a session of its
/// own, inheriting only the environment. A failure is ignored.
void openAfterExit(const std::filesystem::path& application);

} // namespace quillon
