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

} // namespace quillon
