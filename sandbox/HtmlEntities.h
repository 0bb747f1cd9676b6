// Telegram's reading of HTML messages: a text without its markup and the entities over it.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quillon::sandbox {

/// One stretch of a text, in bytes; the Bot API counts the same stretch in UTF-16 units.
struct Entity {
    std::string type; ///< "bold", "pre", "text_link"… as the Bot API names it
    std::size_t begin = 0;
    std::size_t end = 0;
    std::string argument; ///< a link's address or a pre block's language

    bool operator==(const Entity&) const = default;
};

struct FormattedText {
    std::string text;
    std::vector<Entity> entities; ///< in the order of their beginnings, outer before inner
};

/// The message continues "Bad Request: can't parse entities: ".
struct EntityError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Reads text written for parse_mode "HTML". Throws EntityError for a tag that is unknown, unclosed
/// or not opened; the wordings, with offsets in bytes of `html`, are the Bot API's.
FormattedText parseHtml(std::string_view html);

/// Without white space at the end, and at the beginning up to the first entity.
FormattedText trimmed(FormattedText formatted);

} // namespace quillon::sandbox
