#include "update/Version.h"

#include <algorithm>

namespace quillon {

namespace {

bool isDigit(char byte) {
    return byte >= '0' && byte <= '9';
}

/// Bytes beyond ASCII count as letters, whatever they encode.
bool isLetter(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
           static_cast<unsigned char>(byte) >= 0x80;
}

/// One run of a version. A missing one is the number 0.
struct Part {
    bool isNumber = true;
    /// Without leading zeros when it is a number.
    std::string_view text;
};

std::strong_ordering compare(const Part& left, const Part& right) {
    if (left.isNumber != right.isNumber) return left.isNumber <=> right.isNumber;
    if (left.isNumber && left.text.size() != right.text.size())
        return left.text.size() <=> right.text.size();
    return left.text <=> right.text;
}

/// Takes the next run from the front of `rest`.
Part takePart(std::string_view& rest) {
    const auto isEither = [](char byte) { return isDigit(byte) || isLetter(byte); };
    const auto begin = std::find_if(rest.begin(), rest.end(), isEither);
    if (begin == rest.end()) {
        rest = {};
        return {};
    }
    const bool isNumber = isDigit(*begin);
    const auto end = std::find_if_not(begin, rest.end(), isNumber ? isDigit : isLetter);
    Part part{.isNumber = isNumber, .text = {begin, end}};
    rest = {end, rest.end()};
    if (isNumber)
        part.text.remove_prefix(std::min(part.text.find_first_not_of('0'), part.text.size()));
    return part;
}

} // namespace

std::strong_ordering compareVersions(std::string_view left, std::string_view right) {
    while (!left.empty() || !right.empty()) {
        const auto order = compare(takePart(left), takePart(right));
        if (order != std::strong_ordering::equal) return order;
    }
    return std::strong_ordering::equal;
}

} // namespace quillon
