#pragma once

#include <QColor>

/// The brand's colours, in sRGB.
namespace quillon::Brand {

inline constexpr QColor navy{11, 16, 32};
inline constexpr QColor coral{255, 122, 89};
inline constexpr QColor coralDeep{217, 83, 47};

} // namespace quillon::Brand
