#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// One forum topic of the group, one per kind of content.
struct Topic {
    /// "notes", "images", "files" or "videos": never shown, never changed.
    std::string key;
    /// Display name; also the name of the forum topic in Telegram.
    std::string name;
    /// Icon colour 0xRRGGBB, one of the six that the Bot API accepts for forum topics.
    std::int64_t color = 0;
    /// Message thread id; absent until the topic has been created or found in the group.
    std::optional<std::int64_t> threadId;

    bool operator==(const Topic&) const = default;

    /// The four topics of a new user, in display order, without thread ids.
    [[nodiscard]] static const std::vector<Topic>& defaults();

    /// Name of the symbol shown beside the topic; "number" for a key of none of the four.
    [[nodiscard]] std::string_view symbol() const;
};

} // namespace quillon

template <>
struct std::hash<quillon::Topic> {
    std::size_t operator()(const quillon::Topic& topic) const noexcept;
};
