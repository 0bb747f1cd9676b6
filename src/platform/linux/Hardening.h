#pragma once

namespace quillon {

/// Keeps the program's memory, which holds the bot token, out of core dumps and away from the
/// user's other programs. Does nothing in builds with a sanitizer, whose leak check must read that
/// memory.
void keepOutOfCoreDumps();

} // namespace quillon
