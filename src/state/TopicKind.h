#pragma once

#include "base/RawValue.h"

#include <cstdint>
#include <span>

namespace quillon {

/// The kinds of content, each with a topic of its own; in the order in which topics are shown.
enum class TopicKind { notes, images, files, videos };

/// The keys of the topics in config.json: never shown, never changed.
template <>
inline constexpr std::array<std::string_view, 4> rawValues<TopicKind>{"notes", "images", "files",
                                                                      "videos"};

/// What is fixed about one kind.
struct TopicTraits {
    /// The name that a new user's topic has.
    std::string_view name;
    /// The topic's icon colour 0xRRGGBB, one of the six that the Bot API accepts.
    std::int64_t color;
    /// The symbol shown beside the topic.
    std::string_view symbol;
    /// In the settings: what the field of the topic's name is called, and what goes to the topic.
    /// To be translated in the context "Topic".
    const char* hint;
    const char* rule;
    /// What usage events call an item of this kind.
    std::string_view item;
    /// The symbol that an item has in the history.
    std::string_view itemSymbol;
    /// The endings of the files that go to the topic, in lower case. Copied text goes to the notes,
    /// a copied picture to the images, any other file to the files.
    std::span<const std::string_view> endings;
};

[[nodiscard]] const TopicTraits& traits(TopicKind kind);

} // namespace quillon
