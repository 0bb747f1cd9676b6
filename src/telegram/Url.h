#pragma once

#include <string_view>

namespace quillon {

/// Whether the text holds only what RFC 3986 allows in a URL: its reserved and unreserved
/// characters, and percent signs with two hexadecimal digits behind them.
[[nodiscard]] bool isUrlText(std::string_view text);

/// Whether requests can be sent below this address: http or https with a host, and with neither a
/// query nor a fragment behind it.
[[nodiscard]] bool isServerAddress(std::string_view text);

} // namespace quillon
