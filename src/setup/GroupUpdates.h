#pragma once

#include "base/Json.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace quillon {

/// The last group in the result of "getUpdates": a supergroup with a message or a change of the
/// bot's membership, or the supergroup that a group was converted to.
[[nodiscard]] std::optional<std::int64_t> latestGroup(const Json& updates);

/// The thread ids of the chat's topics by name, from the service messages about created and edited
/// topics in `updates`. A later message about the same name wins.
[[nodiscard]] std::map<std::string, std::int64_t> topicThreads(const Json& updates,
                                                               std::int64_t chat);

} // namespace quillon
