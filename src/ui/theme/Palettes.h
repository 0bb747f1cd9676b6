#pragma once

#include <QPalette>

namespace quillon {

/// The colours of the program's windows on a desktop that does not give programs any: light ones
/// and dark ones.
[[nodiscard]] QPalette lightPalette();
[[nodiscard]] QPalette darkPalette();

} // namespace quillon
