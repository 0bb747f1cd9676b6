// What a bot has not read yet.
#pragma once

#include "sandbox/Json.h"

#include <cstdint>
#include <deque>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace quillon::sandbox {

/// The update queue of one bot with Telegram's rules: an update leaves it when a greater offset is
/// asked for, and the kinds allowed last decide what is recorded, not what is handed out.
class UpdateQueue {
public:
    void push(const std::string& kind, Json content);

    /// `allowedUpdates` is the JSON list as text; a list that is none changes nothing, an empty one
    /// stands for the default.
    void allow(const std::string& allowedUpdates);

    /// The oldest updates from `offset` on, at most `limit`; everything before `offset` is
    /// forgotten. A negative offset counts from the end, 0 changes nothing.
    Json take(std::int64_t offset, std::size_t limit);

    bool has(std::int64_t offset) const;

    std::uint64_t polls = 0; ///< how often the queue was asked; a newer poll ends an older one

private:
    std::deque<std::pair<std::int64_t, Json>> updates_;
    std::int64_t lastId_ = 731'205'500;
    std::optional<std::set<std::string>> allowed_;
};

} // namespace quillon::sandbox
