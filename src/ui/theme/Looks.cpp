#include "ui/theme/Looks.h"

#include "ui/theme/Motion.h"
#include "ui/theme/Palettes.h"

#include <QApplication>
#include <QScreen>
#include <QStyle>

#include <algorithm>
#include <array>
#include <cmath>

namespace quillon {

namespace {

/// How far the resolution may be from that of a whole scale factor.
constexpr double resolutionTolerance = 0.02;

/// Whether these are the colours that Qt's style has when nobody gave it any.
bool isStylesOwn(const QPalette& palette) {
    const QPalette standard = QApplication::style()->standardPalette();
    constexpr std::array roles{QPalette::Window, QPalette::WindowText, QPalette::Base,
                               QPalette::Text, QPalette::Button};
    return std::ranges::all_of(roles, [&](QPalette::ColorRole role) {
        return palette.color(QPalette::Active, role) == standard.color(QPalette::Active, role);
    });
}

/// Whether the display's resolution has been raised for the sake of larger texts, as GNOME does for
/// X11 programs: it then is that of a whole scale factor times the texts' scale, and Qt makes
/// everything larger already.
bool resolutionHas(double textScale) {
    const QScreen* screen = QGuiApplication::primaryScreen();
    const double factor = (screen ? screen->devicePixelRatio() : 1) / textScale;
    return factor > 1 - resolutionTolerance &&
           std::abs(factor - std::round(factor)) < resolutionTolerance;
}

QFont scaled(QFont font, double scale) {
    if (font.pointSizeF() > 0) {
        font.setPointSizeF(font.pointSizeF() * scale);
    } else {
        font.setPixelSize(static_cast<int>(std::lround(font.pixelSize() * scale)));
    }
    return font;
}

} // namespace

Looks::Looks()
    : coloursAreOurs_{isStylesOwn(QApplication::palette())},
      font_{QApplication::font()} {
    applyScheme(DesktopLooks::Scheme::noPreference);
}

void Looks::follow(Appearance& appearance) {
    appearance.follow([this](const DesktopLooks& looks) { apply(looks); });
}

void Looks::apply(const DesktopLooks& looks) {
    setAnimationsEnabled(looks.animations);
    applyScheme(looks.scheme);
    applyTextScale(looks.textScale);
}

void Looks::applyScheme(DesktopLooks::Scheme scheme) const {
    if (!coloursAreOurs_) return;
    const QPalette palette = scheme == DesktopLooks::Scheme::dark ? darkPalette() : lightPalette();
    if (QApplication::palette() != palette) QApplication::setPalette(palette);
}

void Looks::applyTextScale(double scale) {
    if (resolutionHas(scale)) scale = 1;
    if (scale == textScale_) return;
    // Until the first change, the desktop's font is followed by Qt.
    if (textScale_ == 1) font_ = QApplication::font();
    textScale_ = scale;
    QApplication::setFont(scaled(font_, scale));
}

} // namespace quillon
