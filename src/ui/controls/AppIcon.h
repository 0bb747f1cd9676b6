#pragma once

#include <QIcon>

namespace quillon {

/// The application's icon for windows and lists of windows, painted in each size on demand.
[[nodiscard]] QIcon appIcon();

} // namespace quillon
