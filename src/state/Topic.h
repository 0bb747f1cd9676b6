#pragma once

#include "state/TopicKind.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// One forum topic of the group, one per kind of content.
struct Topic {
    /// The raw value of a TopicKind; a hand-edited config.json may hold any other text.
    std::string key;
    /// Display name; also the name of the forum topic in Telegram.
    std::string name;
    /// Icon colour 0xRRGGBB, one of the six that the Bot API accepts for forum topics.
    std::int64_t color = 0;
    /// Message thread id; absent until the topic has been created or found in the group.
    std::optional<std::int64_t> threadId;

    bool operator==(const Topic&) const = default;

    /// The topics of a new user, one of each kind in their order, without thread ids.
    [[nodiscard]] static const std::vector<Topic>& defaults();

    /// None when the key is no kind's.
    [[nodiscard]] std::optional<TopicKind> kind() const { return fromRawValue<TopicKind>(key); }
    /// Name of the symbol shown beside the topic; "number" for a key of no kind.
    [[nodiscard]] std::string_view symbol() const;
};

/// The topic that content of the kind goes to: the first one of the kind, else the first of the
/// list. An empty list (only a hand-edited config.json has one) gives the kind's default topic,
/// which has no thread: what is sent there goes to the group's general topic.
[[nodiscard]] Topic topicFor(const std::vector<Topic>& topics, TopicKind kind);

} // namespace quillon

template <>
struct std::hash<quillon::Topic> {
    std::size_t operator()(const quillon::Topic& topic) const noexcept;
};
