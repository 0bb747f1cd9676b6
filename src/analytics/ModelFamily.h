#pragma once

#include <string>

namespace quillon {

struct SystemInfo;

/// The kind of machine without its generation: "Desk Pro (14-inch, 2023)" gives "DeskPro". Falls
/// back to the leading letters of the hardware model, possibly none, when there is no product name
/// in UTF-8.
[[nodiscard]] std::string modelFamily(const SystemInfo& system);

} // namespace quillon
