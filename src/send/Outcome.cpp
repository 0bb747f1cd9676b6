#include "send/Outcome.h"

#include <algorithm>
#include <set>

namespace quillon {

Outcome outcome(const std::vector<Sent>& entries) {
    const auto isFailed = [](const Sent& entry) { return entry.error.has_value(); };
    const auto failed = static_cast<std::size_t>(std::ranges::count_if(entries, isFailed));
    if (failed == entries.size()) return {.text = *entries.front().error, .ok = false};
    if (failed > 0) {
        return {.text = std::to_string(entries.size() - failed) + " sent, " +
                        std::to_string(failed) + " failed",
                .ok = false};
    }
    std::set<std::string> topics;
    for (const Sent& entry : entries) {
        topics.insert(entry.topic);
    }
    if (topics.size() == 1) return {.text = "Sent to " + *topics.begin(), .ok = true};
    return {.text = "Sent " + std::to_string(entries.size()) + " items", .ok = true};
}

} // namespace quillon
