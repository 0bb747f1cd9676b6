#pragma once

#include "platform/SystemInfo.h"

namespace quillon {

/// The kernel's version, Qt's locale, and the product name from the firmware (DMI) or the device
/// tree.
[[nodiscard]] SystemInfo linuxSystemInfo();

} // namespace quillon
