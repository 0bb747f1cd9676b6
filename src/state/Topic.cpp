#include "state/Topic.h"

#include <algorithm>

namespace quillon {

const std::vector<Topic>& Topic::defaults() {
    static const std::vector<Topic> topics = [] {
        std::vector<Topic> all;
        all.reserve(allValues<TopicKind>.size());
        for (const TopicKind kind : allValues<TopicKind>) {
            all.push_back({.key = std::string{rawValue(kind)},
                           .name = std::string{traits(kind).name},
                           .color = traits(kind).color,
                           .threadId = std::nullopt});
        }
        return all;
    }();
    return topics;
}

std::string_view Topic::symbol() const {
    return kind() ? traits(*kind()).symbol : "number";
}

Topic topicFor(const std::vector<Topic>& topics, TopicKind kind) {
    if (topics.empty()) return Topic::defaults().at(static_cast<std::size_t>(kind));
    const auto found = std::ranges::find(topics, rawValue(kind), &Topic::key);
    return found == topics.end() ? topics.front() : *found;
}

} // namespace quillon

std::size_t std::hash<quillon::Topic>::operator()(const quillon::Topic& topic) const noexcept {
    std::size_t seed = std::hash<std::string>{}(topic.key);
    const auto mix = [&seed](std::size_t value) { seed = seed * 31 + value; };
    mix(std::hash<std::string>{}(topic.name));
    mix(std::hash<std::int64_t>{}(topic.color));
    mix(std::hash<std::optional<std::int64_t>>{}(topic.threadId));
    return seed;
}
