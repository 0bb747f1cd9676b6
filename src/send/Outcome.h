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

/// All sent: "Sent to " and the topic when there is one only, else how many items. Some failed: how
/// many of each. All failed: the first failure's own message.
[[nodiscard]] Outcome outcome(const std::vector<Sent>& entries);

} // namespace quillon
