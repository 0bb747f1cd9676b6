#include "base/Text.h"

#include "base/Graphemes.h"
#include "base/Utf8.h"

#include <QByteArray>
#include <unicode/uchar.h>

#include <algorithm>

namespace quillon {

namespace {

template <typename Predicate>
std::string_view trimmedOf(std::string_view text, Predicate drop) {
    std::size_t begin = 0;
    for (std::size_t after = 0; begin < text.size() && drop(nextCodePoint(text, after));) {
        begin = after;
    }
    std::size_t end = text.size();
    for (std::size_t before = end; end > begin && drop(previousCodePoint(text, before));) {
        end = before;
    }
    return text.substr(begin, end - begin);
}

bool isSpace(UChar32 codePoint) {
    return codePoint == U'\t' || u_charType(codePoint) == U_SPACE_SEPARATOR;
}

bool isVisible(UChar32 codePoint) {
    constexpr UChar32 brailleBlank = 0x2800;
    return !u_isUWhiteSpace(codePoint) && !u_iscntrl(codePoint) && codePoint != brailleBlank &&
           !u_hasBinaryProperty(codePoint, UCHAR_DEFAULT_IGNORABLE_CODE_POINT);
}

bool isLineBreak(UChar32 codePoint) {
    return (codePoint >= 0x0A && codePoint <= 0x0D) || codePoint == 0x85 || codePoint == 0x2028 ||
           codePoint == 0x2029;
}

/// Moves the cursor over as many characters as the limit allows; returns where it then stands.
std::size_t advance(GraphemeCursor& cursor, std::string_view text, TextLimit limit) {
    const std::size_t begin = cursor.offset();
    std::size_t end = begin;
    std::size_t codePoints = 0;
    for (std::size_t count = 0; count < limit.characters; ++count) {
        const Grapheme grapheme = cursor.next();
        codePoints += grapheme.codePoints;
        if (grapheme.codePoints == 0 || codePoints > limit.codePoints) break;
        end = grapheme.end;
    }
    if (end == begin) {
        // This single character exceeds the limit. It is better to break it than to lose the text.
        for (std::size_t count = 0; end < text.size() && count < limit.codePoints; ++count) {
            nextCodePoint(text, end);
        }
    }
    cursor.moveTo(end);
    return end;
}

} // namespace

std::string_view trimmed(std::string_view text) {
    return trimmedOf(text, [](UChar32 codePoint) { return u_isUWhiteSpace(codePoint) != 0; });
}

std::string_view trimmedSpaces(std::string_view text) {
    return trimmedOf(text, isSpace);
}

std::string_view trimmedControls(std::string_view text) {
    return trimmedOf(text, [](UChar32 codePoint) {
        const int category = u_charType(codePoint);
        return category == U_CONTROL_CHAR || category == U_FORMAT_CHAR;
    });
}

std::string_view firstLine(std::string_view text) {
    std::size_t begin = 0;
    for (std::size_t offset = 0; offset < text.size();) {
        const std::size_t at = offset;
        if (!isLineBreak(nextCodePoint(text, offset))) continue;
        if (at > begin) return text.substr(begin, at - begin);
        begin = offset;
    }
    return begin < text.size() ? text.substr(begin) : text;
}

bool hasVisibleText(std::string_view text) {
    for (std::size_t offset = 0; offset < text.size();) {
        if (isVisible(nextCodePoint(text, offset))) return true;
    }
    return false;
}

std::string validUtf8(std::string_view text) {
    std::string valid;
    valid.reserve(text.size());
    for (std::size_t offset = 0; offset < text.size();) {
        const std::size_t at = offset;
        valid += nextCodePoint(text, offset) == replacementCharacter ? std::string_view{"\uFFFD"}
                                                                     : text.substr(at, offset - at);
    }
    return valid;
}

std::string_view prefix(std::string_view text, TextLimit limit) {
    GraphemeCursor cursor{text};
    return text.substr(0, advance(cursor, text, limit));
}

std::vector<std::string_view> chunks(std::string_view text, TextLimit limit) {
    std::vector<std::string_view> pieces;
    GraphemeCursor cursor{text};
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = advance(cursor, text, limit);
        pieces.push_back(text.substr(begin, end - begin));
        begin = end;
    }
    return pieces;
}

std::string escapedHtml(std::string_view text) {
    // find_first_of() makes a call for each character, which takes twice as long.
    const auto isSpecial = [](char c) { return c == '&' || c == '<' || c == '>'; };
    std::string escaped;
    escaped.reserve(text.size() + text.size() / 8);
    while (!text.empty()) {
        const std::string_view plain{text.begin(), std::ranges::find_if(text, isSpecial)};
        escaped += plain;
        text.remove_prefix(plain.size());
        if (text.empty()) break;
        escaped += text.front() == '&' ? "&amp;" : text.front() == '<' ? "&lt;" : "&gt;";
        text.remove_prefix(1);
    }
    return escaped;
}

std::string lowercasedAscii(std::string_view text) {
    const QByteArray bytes{text.data(), static_cast<qsizetype>(text.size())};
    return bytes.toLower().toStdString();
}

} // namespace quillon
