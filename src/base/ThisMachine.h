#pragma once

#include <string_view>

namespace quillon {

/// Whether the host of an address is this machine itself: "localhost", an IPv4 address in
/// 127.0.0.0/8, or the IPv6 address ::1, with or without brackets. `host` has the form that a URL
/// parser brings every way to write one into: lower case, four decimal numbers.
[[nodiscard]] bool isThisMachine(std::string_view host);

} // namespace quillon
