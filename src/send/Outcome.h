#pragma once

#include "state/Sent.h"

#include <string>
#include <vector>

namespace quillon {

/// What the banner says of the entries of one send, in the order sent; there is at least one.
struct Outcome {
    std::string text;
    /// Nothing failed.
    bool ok = true;
};

/// If all were sent, the text is "Sent to " with the topic, or the number of items for several
/// topics. If some failed, it counts both. If all failed, it is the first failure's own message.
[[nodiscard]] Outcome outcome(const std::vector<Sent>& entries);

} // namespace quillon
