#include "state/Topic.h"

#include <array>
#include <utility>

namespace quillon {

namespace {

struct Row {
    std::string_view key;
    std::string_view name;
    std::int64_t color;
    std::string_view symbol;
};

constexpr std::array rows{
    Row{"notes", "📝 Notes & text", 0xCB86DB, "text.alignleft"},
    Row{"images", "📸 Images", 0xFFD67E, "photo.fill"},
    Row{"files", "📎 Files", 0x8EEE98, "doc.fill"},
    Row{"videos", "🎬 Videos", 0x6FB9F0, "film.fill"},
};

std::vector<Topic> makeDefaults() {
    std::vector<Topic> topics;
    topics.reserve(rows.size());
    for (const Row& row : rows) {
        topics.push_back({.key = std::string{row.key},
                          .name = std::string{row.name},
                          .color = row.color,
                          .threadId = std::nullopt});
    }
    return topics;
}

} // namespace

const std::vector<Topic>& Topic::defaults() {
    static const std::vector<Topic> topics = makeDefaults();
    return topics;
}

std::string_view Topic::symbol() const {
    for (const Row& row : rows) {
        if (row.key == key) return row.symbol;
    }
    return "number";
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
