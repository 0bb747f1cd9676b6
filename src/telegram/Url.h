#pragma once

#include <string_view>

namespace quillon {

/// Whether the text holds only what RFC 3986 allows in a URL: its reserved and unreserved
/// characters, and percent signs with two hexadecimal digits behind them.
[[nodiscard]] bool isUrlText(std::string_view text);

} // namespace quillon
