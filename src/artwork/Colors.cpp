#include "artwork/Colors.h"

#include <algorithm>
#include <cmath>

namespace quillon {
namespace {

/// The luminance that has the same contrast to black and to white.
constexpr double middleLuminance = 0.179;
/// Halvings in the search for a lightness: enough to be exact to a step of an 8-bit channel.
constexpr int searchSteps = 9;

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

QColor withLightness(const QColor& color, double lightness) {
    return QColor::fromHslF(std::max(0.0F, color.hslHueF()), color.hslSaturationF(),
                            static_cast<float>(lightness))
        .toRgb();
}

} // namespace

double contrast(QColor one, QColor other) {
    const double first = luminance(one);
    const double second = luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

QColor laidOver(QColor top, QColor bottom) {
    const float share = top.alphaF();
    const auto mix = [share](float over, float under) {
        return over * share + under * (1 - share);
    };
    return QColor::fromRgbF(mix(top.redF(), bottom.redF()), mix(top.greenF(), bottom.greenF()),
                            mix(top.blueF(), bottom.blueF()));
}

QColor faded(QColor color, double opacity) {
    color.setAlphaF(color.alphaF() * static_cast<float>(opacity));
    return color;
}

QColor legible(QColor color, QColor background, double ratio) {
    if (contrast(color, background) >= ratio) return color;
    double far = luminance(background) > middleLuminance ? 0 : 1;
    double near = color.lightnessF();
    for (int i = 0; i < searchSteps; ++i) {
        const double between = (near + far) / 2;
        const bool enough = contrast(withLightness(color, between), background) >= ratio;
        (enough ? far : near) = between;
    }
    return withLightness(color, far);
}

} // namespace quillon
