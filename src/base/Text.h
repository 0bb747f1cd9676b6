#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Rules on UTF-8 text. All sizes are in bytes unless a comment says otherwise; invalid UTF-8 is
/// read as validUtf8 would repair it.
namespace quillon {

/// Without white space and line breaks (Unicode White_Space) at both ends.
[[nodiscard]] std::string_view trimmed(std::string_view text);

/// Without spaces and tabs (category Zs and U+0009, no line breaks) at both ends.
[[nodiscard]] std::string_view trimmedSpaces(std::string_view text);

/// Without control and format characters (categories Cc and Cf, line breaks included) at both ends.
[[nodiscard]] std::string_view trimmedControls(std::string_view text);

/// The first non-empty line, untrimmed; the whole text when every line is empty. Lines end at
/// U+000A to U+000D, U+0085, U+2028 and U+2029.
[[nodiscard]] std::string_view firstLine(std::string_view text);

/// The text with each invalid sequence replaced by U+FFFD.
[[nodiscard]] std::string validUtf8(std::string_view text);

/// Whether anything of the text can be seen: a character other than white space, control characters
/// and those that Unicode calls default ignorable, such as U+200B, or the Braille blank U+2800.
[[nodiscard]] bool hasVisibleText(std::string_view text);

/// How much of a text fits: user-perceived characters (extended grapheme clusters) and Unicode code
/// points, whichever is reached first.
struct TextLimit {
    std::size_t characters = 0;
    std::size_t codePoints = 0;
};

/// The longest beginning of the text within the limit. A character is never cut in two, unless the
/// very first one alone has more code points than the limit: that one is cut between code points.
[[nodiscard]] std::string_view prefix(std::string_view text, TextLimit limit);

/// The text cut into prefixes, in order; joined they are the text. An empty text has none.
[[nodiscard]] std::vector<std::string_view> chunks(std::string_view text, TextLimit limit);

/// The text as it stands in HTML: "&", "<" and ">" as entities.
[[nodiscard]] std::string escapedHtml(std::string_view text);

/// ASCII letters in lower case, everything else unchanged.
[[nodiscard]] std::string lowercasedAscii(std::string_view text);

} // namespace quillon
