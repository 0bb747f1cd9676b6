#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace quillon {

/// Where the confirmation banner appears; the order is that of the position picker.
enum class BannerPosition { top, middle, bottom };

inline constexpr std::array allBannerPositions{BannerPosition::top, BannerPosition::middle,
                                               BannerPosition::bottom};

/// How the position is stored in config.json and reported.
[[nodiscard]] std::string_view rawValue(BannerPosition position);
[[nodiscard]] std::optional<BannerPosition> bannerPosition(std::string_view rawValue);

/// What the position picker shows: a word and a symbol name.
[[nodiscard]] std::string label(BannerPosition position);
[[nodiscard]] std::string_view symbol(BannerPosition position);

} // namespace quillon
