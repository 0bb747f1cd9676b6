#pragma once

#include <QColor>

/// Rules about colours: how far apart they are for the eye, and how to keep them apart. All sRGB.
namespace quillon {

/// How far apart two opaque colours are, from 1 to 21 (WCAG 2.1, contrast ratio).
[[nodiscard]] double contrast(QColor one, QColor other);

/// What is seen where `top`, alpha included, lies on an opaque `bottom`.
[[nodiscard]] QColor laidOver(QColor top, QColor bottom);

/// The colour with its alpha multiplied by `opacity`, from 0 to 1.
[[nodiscard]] QColor faded(QColor color, double opacity);

/// The colour itself or, where it is too close to the background, one of the same hue that is as
/// much darker (on a light background) or lighter (on a dark one) as the ratio takes.
[[nodiscard]] QColor legible(QColor color, QColor background, double ratio);

/// Contrast that text needs, and what symbols and lines need (WCAG 2.1, 1.4.3 and 1.4.11).
inline constexpr double textContrast = 4.5;
inline constexpr double graphicContrast = 3;

} // namespace quillon
