#pragma once

namespace quillon {

/// Keeps the program's memory, which holds the bot token, out of core dumps and away from the
/// user's other programs. Without effect in builds with a sanitizer, whose leak check needs to
/// look.
void keepOutOfCoreDumps();

} // namespace quillon
