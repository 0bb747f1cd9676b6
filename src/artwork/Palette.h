#pragma once

#include <QColor>

/// The colours of tiles and badges, in sRGB. They only tell neighbours apart.
namespace quillon::Palette {

inline constexpr QColor blue{51, 144, 236};
inline constexpr QColor green{52, 199, 89};
inline constexpr QColor orange{255, 159, 10};
inline constexpr QColor pink{255, 55, 95};
inline constexpr QColor purple{175, 82, 222};
inline constexpr QColor yellow{245, 180, 0};
inline constexpr QColor gray{142, 142, 147};
inline constexpr QColor teal{48, 176, 199};

} // namespace quillon::Palette
