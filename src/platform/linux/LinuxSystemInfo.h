#pragma once

#include "platform/SystemInfo.h"

namespace quillon {

/// The kernel's version, Qt's idea of the locale, and the product name that the firmware (DMI) or
/// the device tree gives.
[[nodiscard]] SystemInfo linuxSystemInfo();

} // namespace quillon
