#pragma once

#include <string>

namespace quillon {

struct SystemInfo;

/// What kind of machine this is, without what tells its generation: "Desk Pro (14-inch, 2023)"
/// gives "DeskPro". Without a product name in UTF-8 it is the leading letters of the coarser
/// hardware model, which may be none.
[[nodiscard]] std::string modelFamily(const SystemInfo& system);

} // namespace quillon
