#pragma once

#include <compare>
#include <string_view>

namespace quillon {

/// Which of two dotted versions is the newer one. Both are read as runs of digits and runs of
/// letters; anything else only separates them. Numbers compare as numbers of any length, letters
/// byte by byte; letters mark what comes before a release, so "1.0b2" < "1.0" < "1.0.1", and what
/// is missing counts as 0, so "1.0" and "1.0.0" are equal. Total: any text has a place.
[[nodiscard]] std::strong_ordering compareVersions(std::string_view left, std::string_view right);

} // namespace quillon
