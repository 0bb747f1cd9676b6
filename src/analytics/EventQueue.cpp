#include "analytics/EventQueue.h"

#include <algorithm>

namespace quillon {

EventQueue EventQueue::decode(std::string_view bytes) {
    const std::optional<Json> array = parseJson(bytes);
    if (!array || !array->is_array()) return {};
    EventQueue queue;
    for (const Json& element : *array) {
        std::optional<Event> event = Event::fromJson(element);
        if (!event) return {};
        queue.append(std::move(*event));
    }
    return queue;
}

std::string EventQueue::encode() const {
    std::string array;
    array.reserve(jsonSize_ + entries_.size() + 2);
    for (const Entry& entry : entries_) {
        array += array.empty() ? '[' : ',';
        array += entry.json;
    }
    return array.empty() ? "[]" : array + ']';
}

void EventQueue::append(Event event) {
    std::string json = writeJson(event.toJson());
    jsonSize_ += json.size();
    entries_.push_back({.event = std::move(event), .json = std::move(json)});
    if (entries_.size() > limit) removeFirst(entries_.size() - limit);
}

void EventQueue::removeFirst(std::size_t count) {
    for (count = std::min(count, entries_.size()); count > 0; --count) {
        jsonSize_ -= entries_.front().json.size();
        entries_.pop_front();
    }
}

std::vector<Event> EventQueue::first(std::size_t count) const {
    std::vector<Event> events;
    for (std::size_t index = 0; index < std::min(count, entries_.size()); ++index) {
        events.push_back(entries_[index].event);
    }
    return events;
}

} // namespace quillon
