// The updates that a bot has not read yet.
#pragma once

#include "sandbox/Json.h"

#include <cstdint>
#include <deque>
#include <set>
#include <string>
#include <utility>

namespace quillon::sandbox {

/// The update queue of one bot, by Telegram's rules: asking for a greater offset removes an update,
/// and the kinds that were allowed last decide which new updates are recorded, not which are handed
/// out.
class UpdateQueue {
public:
    void push(const std::string& kind, Json content);

    /// `allowedUpdates` is a JSON list as text. A text that is no list changes nothing, and an
    /// empty list stands for the default.
    void allow(const std::string& allowedUpdates);

    /// The oldest updates from `offset` on, at most `limit`; everything before `offset` is
    /// forgotten. A negative offset counts from the end, 0 changes nothing.
    Json take(std::int64_t offset, std::size_t limit);

    bool has(std::int64_t offset) const;

    std::uint64_t polls = 0; ///< counts the polls; a newer poll ends an older one

private:
    std::deque<std::pair<std::int64_t, Json>> updates_;
    std::int64_t lastId_ = 731'205'500;
    std::set<std::string> allowed_; ///< empty for all kinds
};

} // namespace quillon::sandbox
