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
/// How long a title in the history may be. Only texts with endless accents on one letter reach the
/// limit of code points.
inline constexpr TextLimit titleLimit{.characters = 60, .codePoints = 2000};
/// How long an error may be in the history. A server can answer with megabytes, and a history file
/// over its limit is not read again.
inline constexpr TextLimit errorLimit{.characters = 500, .codePoints = 2000};

/// The messages that carry a copied text, in order: each chunk as preformatted HTML. Chunks of
/// blanks alone are left out, since the Bot API refuses a message without visible text. If all
/// chunks are blank they are kept, so that the user sees Telegram's own error.
[[nodiscard]] std::vector<std::string> textMessages(std::string_view text);

/// The caption made of the text copied with an image; none when it is blank.
[[nodiscard]] std::optional<std::string> caption(const std::optional<std::string>& text);

/// A text's line in the history: its first line that is not empty, cut to 60 characters.
[[nodiscard]] std::string textTitle(std::string_view text);

} // namespace quillon
