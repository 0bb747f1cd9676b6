#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>

namespace quillon {

/// What the program prints on its standard output when it is started with this one argument, up to
/// 4 KB. None when it cannot be started, fails, or takes longer than the time-out; it does not
/// outlive that. Waits: not for the main thread.
[[nodiscard]] std::optional<std::string> programOutput(const std::filesystem::path& program,
                                                       const std::string& argument,
                                                       std::chrono::milliseconds timeout);

} // namespace quillon
