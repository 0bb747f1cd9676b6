#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>

namespace quillon {

/// Runs the program with this one argument and returns its standard output, up to 4 KB. None if it
/// cannot be started, fails, or takes longer than the time-out, after which it is killed. Waits:
/// not for the main thread. (QProcess takes no path that is not UTF-8.)
[[nodiscard]] std::optional<std::string> programOutput(const std::filesystem::path& program,
                                                       const std::string& argument,
                                                       std::chrono::milliseconds timeout);

} // namespace quillon
