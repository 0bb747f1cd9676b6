#include "state/TopicKind.h"

#include "base/Translate.h"

namespace quillon {

namespace {

constexpr std::array<std::string_view, 6> imageEndings{".png",  ".jpg", ".jpeg",
                                                       ".webp", ".gif", ".heic"};
constexpr std::array<std::string_view, 4> videoEndings{".mp4", ".mov", ".m4v", ".webm"};

constexpr std::array<TopicTraits, rawValues<TopicKind>.size()> table{{
    {.name = "📝 Notes & text",
     .color = 0xCB86DB,
     .symbol = "text.alignleft",
     .hint = QT_TRANSLATE_NOOP("Topic", "Text"),
     .rule = QT_TRANSLATE_NOOP("Topic", "copied text"),
     .item = "text",
     .itemSymbol = "text.alignleft",
     .endings = {}},
    {.name = "📸 Images",
     .color = 0xFFD67E,
     .symbol = "photo.fill",
     .hint = QT_TRANSLATE_NOOP("Topic", "Pictures"),
     .rule = QT_TRANSLATE_NOOP("Topic", "pictures"),
     .item = "image",
     .itemSymbol = "photo",
     .endings = imageEndings},
    {.name = "📎 Files",
     .color = 0x8EEE98,
     .symbol = "doc.fill",
     .hint = QT_TRANSLATE_NOOP("Topic", "Files"),
     .rule = QT_TRANSLATE_NOOP("Topic", "any other file"),
     .item = "file",
     .itemSymbol = "doc",
     .endings = {}},
    {.name = "🎬 Videos",
     .color = 0x6FB9F0,
     .symbol = "film.fill",
     .hint = QT_TRANSLATE_NOOP("Topic", "Videos"),
     .rule = QT_TRANSLATE_NOOP("Topic", "video files"),
     .item = "video",
     .itemSymbol = "film",
     .endings = videoEndings},
}};

} // namespace

const TopicTraits& traits(TopicKind kind) {
    return table.at(static_cast<std::size_t>(kind));
}

} // namespace quillon
