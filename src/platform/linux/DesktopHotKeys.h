#pragma once

#include "platform/HotKeys.h"

#include <memory>

namespace quillon {

/// The hot keys of the session that this process runs in: grabs on the X server where the session
/// is one of X11 (in others they would work only while a window of an X11 program has the focus),
/// else what the desktop gives.
[[nodiscard]] std::unique_ptr<HotKeys> openHotKeys();

} // namespace quillon
