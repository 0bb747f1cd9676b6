// Counts, checks and cleans UTF-8 as the Bot API does.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quillon::sandbox {

/// The code point at `position`, which moves past it. None, without moving, at the end or if the
/// bytes are not well-formed UTF-8; overlong forms and surrogates are not.
std::optional<char32_t> nextCodePoint(std::string_view text, std::size_t& position);

bool isUtf8(std::string_view text);

std::string encoded(char32_t codePoint);

/// Lengths of well-formed UTF-8.
std::size_t codePoints(std::string_view text);
std::size_t utf16Units(std::string_view text);

/// The first `count` code points.
std::string_view firstCodePoints(std::string_view text, std::size_t count);

/// The text as the Bot API cleans it first of all: control characters (the tab included) become
/// spaces, carriage returns, line separators, direction marks U+2028…U+202E and three combining
/// lines are dropped.
std::string cleaned(std::string_view text);

/// Whether nothing in the text can be seen, because it has only spaces, line breaks, zero-width and
/// blank letters.
bool isBlank(std::string_view text);

/// A topic's name as it is stored: cleaned, on one line, trimmed, at most `limit` code points.
std::string cleanedName(std::string_view text, std::size_t limit);

/// ASCII alone.
constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
constexpr bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
std::string lowered(std::string_view ascii);
std::string trimmedAscii(std::string_view text);

} // namespace quillon::sandbox
