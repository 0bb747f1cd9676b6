#pragma once

#include <compare>
#include <string_view>

namespace quillon {

/// Compares two dotted versions by age. Both are read as runs of digits and runs of letters;
/// anything else only separates them. Numbers compare as numbers of any length, letters byte by
/// byte; letters mark versions before a release, so "1.0b2" < "1.0" < "1.0.1"; missing parts count
/// as 0, so "1.0" and "1.0.0" are equal. Any two texts can be compared.
[[nodiscard]] std::strong_ordering compareVersions(std::string_view left, std::string_view right);

} // namespace quillon
