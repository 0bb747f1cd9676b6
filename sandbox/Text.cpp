#include "sandbox/Text.h"

#include <algorithm>
#include <array>

namespace quillon::sandbox {

namespace {

struct Range {
    char32_t first;
    char32_t last;
};

constexpr std::array blankRanges{
    Range{U'\n', U'\n'},   Range{U' ', U' '},     Range{0xA0, 0xA0},     Range{0xAD, 0xAD},
    Range{0x115F, 0x1160}, Range{0x180E, 0x180E}, Range{0x2000, 0x200F}, Range{0x2028, 0x202F},
    Range{0x205F, 0x206F}, Range{0x2800, 0x2800}, Range{0x3000, 0x3000}, Range{0x3164, 0x3164},
    Range{0xFE00, 0xFE0F}, Range{0xFEFF, 0xFEFF}, Range{0xFFA0, 0xFFA0},
};

constexpr std::array droppedRanges{
    Range{U'\r', U'\r'},   Range{0x2028, 0x202E}, Range{0x030A, 0x030A},
    Range{0x0333, 0x0333}, Range{0x033F, 0x033F},
};

template <std::size_t N>
bool within(const std::array<Range, N>& ranges, char32_t codePoint) {
    return std::any_of(ranges.begin(), ranges.end(), [codePoint](Range range) {
        return codePoint >= range.first && codePoint <= range.last;
    });
}

} // namespace

std::optional<char32_t> nextCodePoint(std::string_view text, std::size_t& position) {
    if (position >= text.size()) return std::nullopt;
    const auto lead = static_cast<unsigned char>(text[position]);
    if (lead < 0x80) {
        ++position;
        return lead;
    }
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || position + length > text.size()) return std::nullopt;
    char32_t value = lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[position + i]);
        if ((next & 0xC0u) != 0x80u) return std::nullopt;
        value = (value << 6u) | (next & 0x3Fu);
    }
    constexpr std::array<char32_t, 5> smallest{0, 0, 0x80, 0x800, 0x10000};
    if (value < smallest.at(length) || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF))
        return std::nullopt;
    position += length;
    return value;
}

bool isUtf8(std::string_view text) {
    std::size_t position = 0;
    while (nextCodePoint(text, position)) {
    }
    return position == text.size();
}

std::string encoded(char32_t codePoint) {
    const auto byte = [](char32_t value) { return static_cast<char>(value); };
    const auto tail = [&](unsigned shift) { return byte(0x80u | ((codePoint >> shift) & 0x3Fu)); };
    if (codePoint < 0x80) return {byte(codePoint)};
    if (codePoint < 0x800) return {byte(0xC0u | (codePoint >> 6u)), tail(0)};
    if (codePoint < 0x10000) return {byte(0xE0u | (codePoint >> 12u)), tail(6), tail(0)};
    return {byte(0xF0u | (codePoint >> 18u)), tail(12), tail(6), tail(0)};
}

std::size_t codePoints(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0u) != 0x80u;
    }));
}

std::size_t utf16Units(std::string_view text) {
    const auto astral = std::count_if(
        text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) >= 0xF0u; });
    return codePoints(text) + static_cast<std::size_t>(astral);
}

std::string_view firstCodePoints(std::string_view text, std::size_t count) {
    std::size_t position = 0;
    for (std::size_t i = 0; i < count && nextCodePoint(text, position); ++i) {
    }
    return text.substr(0, position);
}

std::string cleaned(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    std::size_t position = 0;
    for (std::size_t start = 0; const auto codePoint = nextCodePoint(text, position);
         start = position) {
        if (within(droppedRanges, *codePoint)) continue;
        if (*codePoint < U' ' && *codePoint != U'\n') {
            result += ' ';
        } else {
            result += text.substr(start, position - start);
        }
    }
    return result;
}

bool isBlank(std::string_view text) {
    std::size_t position = 0;
    while (const auto codePoint = nextCodePoint(text, position)) {
        if (!within(blankRanges, *codePoint)) return false;
    }
    return true;
}

std::string cleanedName(std::string_view text, std::size_t limit) {
    std::string name = cleaned(text);
    std::replace(name.begin(), name.end(), '\n', ' ');
    name = trimmedAscii(name);
    if (isBlank(name)) return {};
    return trimmedAscii(firstCodePoints(name, limit));
}

std::string lowered(std::string_view ascii) {
    std::string result{ascii};
    std::transform(result.begin(), result.end(), result.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return result;
}

std::string trimmedAscii(std::string_view text) {
    constexpr std::string_view space = " \t\r\n";
    const auto first = text.find_first_not_of(space);
    if (first == std::string_view::npos) return {};
    return std::string{text.substr(first, text.find_last_not_of(space) - first + 1)};
}

} // namespace quillon::sandbox
