#pragma once

#include "platform/Pasteboard.h"

#include <memory>

namespace quillon {

/// The clipboard of the desktop that the environment names: by ext-data-control, else by
/// wlr-data-control, else by X11, else one that is empty and whose way() is none. It is chosen anew
/// when the display goes away. Takes milliseconds, or a second where a compositor does not answer.
[[nodiscard]] std::unique_ptr<Pasteboard> openPasteboard();

} // namespace quillon
