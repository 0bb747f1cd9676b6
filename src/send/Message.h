#pragma once

#include "base/Text.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// At most 3,900 characters a message. The Bot API counts code points, 4,096 of them after the
/// entities are parsed: a family of emoji is one character of up to 11.
inline constexpr TextLimit messageLimit{.characters = 3900, .codePoints = 4096};
/// The Bot API's limit for captions is 1,024 code points.
inline constexpr TextLimit captionLimit{.characters = 1024, .codePoints = 1024};
/// How long a title in the history may be. No writing needs as many code points; a text made to
/// annoy, with endless accents on one letter, does.
inline constexpr TextLimit titleLimit{.characters = 60, .codePoints = 2000};

/// The messages that carry a copied text, in order: each chunk as preformatted HTML. A chunk of
/// blanks alone is left out, since the Bot API refuses a message without visible text; not so where
/// all are, for then Telegram is to say it.
[[nodiscard]] std::vector<std::string> textMessages(std::string_view text);

/// The caption made of the text copied with an image; none when it is blank.
[[nodiscard]] std::optional<std::string> caption(const std::optional<std::string>& text);

/// A text's line in the history: its first line that is not empty, cut to 60 characters.
[[nodiscard]] std::string textTitle(std::string_view text);

} // namespace quillon
