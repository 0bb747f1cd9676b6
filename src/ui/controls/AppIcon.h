#pragma once

#include <QIcon>

namespace quillon {

/// The application's icon for windows and lists of them, painted in each size when somebody asks
/// for it.
[[nodiscard]] QIcon appIcon();

} // namespace quillon
