#pragma once

#include <QColor>

/// Mixing colours and keeping them apart for the eye. All sRGB.
namespace quillon {

/// The contrast ratio of two opaque colours, from 1 to 21 (WCAG 2.1).
[[nodiscard]] double contrast(QColor one, QColor other);

/// The opaque colour that shows where `top`, which may be translucent, lies on an opaque `bottom`.
[[nodiscard]] QColor laidOver(QColor top, QColor bottom);

/// The colour with its alpha multiplied by `opacity`, from 0 to 1.
[[nodiscard]] QColor faded(QColor color, double opacity);

/// The colour itself if it has the contrast `ratio` to the background. Otherwise one of the same
/// hue, darker on a light background and lighter on a dark one, by no more than the ratio takes.
[[nodiscard]] QColor legible(QColor color, QColor background, double ratio);

/// The contrast that text needs, and symbols and lines (WCAG 2.1, 1.4.3 and 1.4.11).
inline constexpr double textContrast = 4.5;
inline constexpr double graphicContrast = 3;

} // namespace quillon
