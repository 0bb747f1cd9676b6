#pragma once

#include "cli/Commands.h"

namespace quillon {

/// Tells whether there is a newer version and, with `install`, installs it. Copies that run are
/// left alone. Throws TelegramError where this copy cannot be updated at all.
[[nodiscard]] QCoro::Task<int> runUpdateCheck(CommandContext context, bool install);

} // namespace quillon
