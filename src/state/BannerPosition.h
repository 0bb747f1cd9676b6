#pragma once

#include "base/RawValue.h"

#include <string>

namespace quillon {

/// Where the confirmation banner appears; the order is that of the position picker.
enum class BannerPosition { top, middle, bottom };

/// How the position is stored in config.json and reported.
template <>
inline constexpr std::array<std::string_view, 3> rawValues<BannerPosition>{"top", "middle",
                                                                           "bottom"};

inline constexpr auto allBannerPositions = allValues<BannerPosition>;

/// What the position picker shows: a word and a symbol name.
[[nodiscard]] std::string label(BannerPosition position);
[[nodiscard]] std::string_view symbol(BannerPosition position);

} // namespace quillon
