#pragma once

#include "base/Json.h"

#include <cstdint>
#include <string>

namespace quillon {

/// One usage event.
struct Event {
    std::string name;
    /// Milliseconds since 1970-01-01 UTC.
    std::int64_t at = 0;
    /// An object of texts, 64-bit integers and Booleans, never what the user copied.
    Json props;

    /// {"name": text, "at": integer, "props": object}
    [[nodiscard]] Json toJson() const;
    /// Throws Undecodable when a key is missing or has a value of another type.
    [[nodiscard]] static Event fromJson(const Json& object);
};

} // namespace quillon
