#pragma once

#include "analytics/Event.h"

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// Events not yet delivered, oldest first. Each keeps its JSON beside it, since the whole queue is
/// written to disk at every event.
class EventQueue {
public:
    /// Beyond this many events the oldest are dropped.
    static constexpr std::size_t limit = 2000;

    /// Reads events.json, all or nothing: an unusable event makes the whole queue empty.
    [[nodiscard]] static EventQueue decode(std::string_view bytes);

    /// The content of events.json: one compact JSON array.
    [[nodiscard]] std::string encode() const;

    void append(Event event);
    /// Drops up to `count` of the oldest events.
    void removeFirst(std::size_t count);

    [[nodiscard]] std::size_t size() const { return entries_.size(); }
    [[nodiscard]] bool empty() const { return entries_.empty(); }
    /// Copies of up to `count` of the oldest events.
    [[nodiscard]] std::vector<Event> first(std::size_t count) const;

private:
    struct Entry {
        Event event;
        std::string json;
    };
    std::deque<Entry> entries_;
    /// Sum of the lengths of all `json`, in bytes.
    std::size_t jsonSize_ = 0;
};

} // namespace quillon
