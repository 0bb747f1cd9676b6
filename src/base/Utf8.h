#pragma once

#include <unicode/utf8.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quillon {

/// Stands for an invalid sequence.
inline constexpr UChar32 replacementCharacter = 0xFFFD;

// ICU's macros narrow integers in ways that -Wconversion refuses; they are used here alone.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"

/// The code point at byte `offset`, which moves past it; U+FFFD for an invalid sequence.
inline UChar32 nextCodePoint(std::string_view text, std::size_t& offset) {
    UChar32 codePoint = 0;
    U8_NEXT_OR_FFFD(text.data(), offset, text.size(), codePoint);
    return codePoint;
}

/// The code point before byte `offset`, which moves in front of it. For texts below 2 GB.
inline UChar32 previousCodePoint(std::string_view text, std::size_t& offset) {
    auto index = static_cast<std::int32_t>(offset);
    UChar32 codePoint = 0;
    U8_PREV_OR_FFFD(text.data(), 0, index, codePoint);
    offset = static_cast<std::size_t>(index);
    return codePoint;
}

#pragma GCC diagnostic pop

} // namespace quillon
