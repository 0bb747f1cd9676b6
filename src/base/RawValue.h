#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

/// Enumerations that files and usage events write as words.
namespace quillon {

/// The words of an enumeration's values, in the order of the values, which count from 0. Each
/// enumeration that has words specializes this.
template <typename Enum>
inline constexpr std::array<std::string_view, 0> rawValues{};

template <typename Enum>
concept HasRawValues = !rawValues<Enum>.empty();

template <HasRawValues Enum>
[[nodiscard]] constexpr std::string_view rawValue(Enum value) {
    return rawValues<Enum>.at(static_cast<std::size_t>(value));
}

/// The value that the word stands for; none for any other word.
template <HasRawValues Enum>
[[nodiscard]] constexpr std::optional<Enum> fromRawValue(std::string_view word) {
    const auto& words = rawValues<Enum>;
    const auto found = std::ranges::find(words, word);
    if (found == words.end()) return std::nullopt;
    return static_cast<Enum>(found - words.begin());
}

/// All values, in their order.
template <HasRawValues Enum>
inline constexpr auto allValues = [] {
    std::array<Enum, rawValues<Enum>.size()> values{};
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = static_cast<Enum>(i);
    return values;
}();

} // namespace quillon
