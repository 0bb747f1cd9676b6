#include "state/Topic.h"

#include <algorithm>

namespace quillon {

const std::vector<Topic>& Topic::defaults() {
    static const std::vector<Topic> topics = [] {
        std::vector<Topic> all;
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
