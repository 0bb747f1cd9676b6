#include "sandbox/Text.h"

#include <boost/locale/utf.hpp>

#include <algorithm>
#include <array>
#include <iterator>
#include <span>

namespace quillon::sandbox {

namespace {

using Utf8 = boost::locale::utf::utf_traits<char>;

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

bool within(std::span<const Range> ranges, char32_t codePoint) {
    return std::ranges::any_of(ranges, [codePoint](Range range) {
        return codePoint >= range.first && codePoint <= range.last;
    });
}

} // namespace

std::optional<char32_t> nextCodePoint(std::string_view text, std::size_t& position) {
    text.remove_prefix(position);
    const auto* next = text.begin();
    const auto codePoint = Utf8::decode(next, text.end());
    if (!boost::locale::utf::is_valid_codepoint(codePoint)) return std::nullopt;
    position += static_cast<std::size_t>(next - text.begin());
    return codePoint;
}

bool isUtf8(std::string_view text) {
    std::size_t position = 0;
    while (nextCodePoint(text, position)) {
    }
    return position == text.size();
}

std::string encoded(char32_t codePoint) {
    std::string bytes;
    Utf8::encode(codePoint, std::back_inserter(bytes));
    return bytes;
}

std::size_t codePoints(std::string_view text) {
    return text.size() - static_cast<std::size_t>(std::ranges::count_if(text, Utf8::is_trail));
}

std::size_t utf16Units(std::string_view text) {
    const auto astral =
        std::ranges::count_if(text, [](char c) { return static_cast<unsigned char>(c) >= 0xF0u; });
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
    std::ranges::replace(name, '\n', ' ');
    name = trimmedAscii(name);
    if (isBlank(name)) return {};
    return trimmedAscii(firstCodePoints(name, limit));
}

std::string lowered(std::string_view ascii) {
    std::string result{ascii};
    for (char& c : result) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return result;
}

std::string trimmedAscii(std::string_view text) {
    constexpr std::string_view space = " \t\r\n";
    const auto first = text.find_first_not_of(space);
    if (first == std::string_view::npos) return {};
    return std::string{text.substr(first, text.find_last_not_of(space) - first + 1)};
}

} // namespace quillon::sandbox
