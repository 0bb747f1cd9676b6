#pragma once

#include <QLineF>
#include <QRectF>

#include <array>

/// The lines that the application's mark is made of, on a canvas of 20 by 16 units with y growing
/// downwards. Shared by the coloured mark and the icon in one colour.
namespace quillon::MarkGeometry {

inline constexpr QRectF phone{10.86, 1.54, 5.78, 12.92};
inline constexpr QRectF contentBar{5.42, 6.30, 7.82, 3.40};
inline constexpr std::array motion{QLineF{2.36, 6.81, 4.06, 6.81}, QLineF{3.04, 9.19, 4.40, 9.19}};
inline constexpr double cornerRadius = 1.7;
inline constexpr double phoneWidth = 1.5;
inline constexpr double motionWidth = 1.3;
/// All of it, line widths included: what is drawn is not centred on the canvas.
inline constexpr QRectF extent{1.71, 0.79, 15.68, 14.42};

} // namespace quillon::MarkGeometry
