#pragma once

#include "base/Json.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace quillon {

/// The group that the result of "getUpdates" speaks of last: the last supergroup seen in a message
/// or a change of the bot's membership, or the supergroup that a group was converted to.
[[nodiscard]] std::optional<std::int64_t> latestGroup(const Json& updates);

/// Topic names and their thread ids, as the service messages of created and edited topics in
/// `updates` tell for the chat; a later message about the same name wins.
[[nodiscard]] std::map<std::string, std::int64_t> topicThreads(const Json& updates,
                                                               std::int64_t chat);

} // namespace quillon
