#pragma once

#include "analytics/Event.h"

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>

namespace quillon {

/// Events not yet delivered, oldest first. Each is kept as its JSON, since the whole queue is
/// written to disk at every event.
class EventQueue {
public:
    /// Beyond this many events the oldest are dropped.
    static constexpr std::size_t limit = 2000;

    /// Reads events.json, all or nothing: an unusable event makes the whole queue empty.
    [[nodiscard]] static EventQueue decode(std::string_view bytes);

    /// Up to `count` of the oldest events as one compact JSON array, which is what events.json
    /// holds.
    [[nodiscard]] std::string encode(std::size_t count = limit) const;

    void append(const Event& event);
    /// Drops up to `count` of the oldest events.
    void removeFirst(std::size_t count);

    [[nodiscard]] std::size_t size() const { return entries_.size(); }
    [[nodiscard]] bool empty() const { return entries_.empty(); }

private:
    /// Each event as JSON.
    std::deque<std::string> entries_;
    /// Sum of their lengths, in bytes.
    std::size_t jsonSize_ = 0;
};

} // namespace quillon
