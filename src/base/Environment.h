#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace quillon {

/// What the environment variable says; none where it is unset or empty.
inline std::optional<std::string> environment(const char* name) {
    const char* value = std::getenv(name);
    if (!value || !*value) return std::nullopt;
    return value;
}

/// Whether there is a session bus already. Otherwise D-Bus libraries would start one, which only
/// this program could see.
[[nodiscard]] bool hasSessionBus();

} // namespace quillon
