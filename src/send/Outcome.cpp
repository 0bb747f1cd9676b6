#include "send/Outcome.h"

#include "base/Translate.h"

#include <algorithm>
#include <set>

namespace quillon {

Outcome outcome(const std::vector<Sent>& entries) {
    const auto isFailed = [](const Sent& entry) { return entry.error.has_value(); };
    const auto failed = static_cast<std::size_t>(std::ranges::count_if(entries, isFailed));
    if (failed == entries.size()) return {.text = *entries.front().error, .ok = false};
    if (failed > 0) {
        return {.text = filled(translate("Send", "%1 sent, %2 failed"),
                               {std::to_string(entries.size() - failed), std::to_string(failed)}),
                .ok = false};
    }
    std::set<std::string> topics;
    for (const Sent& entry : entries) {
        topics.insert(entry.topic);
    }
    if (topics.size() == 1)
        return {.text = filled(translate("Send", "Sent to %1"), {*topics.begin()}), .ok = true};
    const int count = static_cast<int>(entries.size());
    return {.text = translate("Send", "Sent %n items", nullptr, count), .ok = true};
}

} // namespace quillon
