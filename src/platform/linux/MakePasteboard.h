#pragma once

#include "platform/Pasteboard.h"

#include <memory>

namespace quillon {

/// The clipboard of the display that $DISPLAY names; without one, a clipboard that offers nothing.
[[nodiscard]] std::unique_ptr<Pasteboard> makePasteboard();

} // namespace quillon
