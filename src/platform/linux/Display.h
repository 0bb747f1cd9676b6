#pragma once

namespace quillon {

/// Whether an X server answers at the address in DISPLAY. Qt ends the process when none does, so
/// this is asked before there are windows.
[[nodiscard]] bool displayAnswers();

} // namespace quillon
