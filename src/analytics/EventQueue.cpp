#include "analytics/EventQueue.h"

#include "base/JsonDecoding.h"

#include <algorithm>

namespace quillon {

EventQueue EventQueue::decode(std::string_view bytes) {
    const auto eventsFromJson = [](const Json& array) {
        return decodedList(array, &Event::fromJson);
    };
    EventQueue queue;
    for (const Event& event : decoded(bytes, eventsFromJson).value_or(std::vector<Event>{}))
        queue.append(event);
    return queue;
}

std::string EventQueue::encode(std::size_t count) const {
    std::string array;
    array.reserve(jsonSize_ + entries_.size() + 2);
    for (std::size_t index = 0; index < std::min(count, entries_.size()); ++index) {
        array += array.empty() ? '[' : ',';
        array += entries_[index];
    }
    return array.empty() ? "[]" : array + ']';
}

void EventQueue::append(const Event& event) {
    jsonSize_ += entries_.emplace_back(writeJson(event.toJson())).size();
    if (entries_.size() > limit) removeFirst(entries_.size() - limit);
}

void EventQueue::removeFirst(std::size_t count) {
    for (count = std::min(count, entries_.size()); count > 0; --count) {
        jsonSize_ -= entries_.front().size();
        entries_.pop_front();
    }
}

} // namespace quillon
