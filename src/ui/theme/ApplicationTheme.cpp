#include "ui/theme/ApplicationTheme.h"

#include "artwork/Brand.h"
#include "artwork/Colors.h"
#include "ui/theme/Motion.h"

#include <QApplication>
#include <QScreen>
#include <QStyle>

#include <algorithm>
#include <array>
#include <cmath>

namespace quillon {

namespace {

/// The colours that the rest of a palette is derived from.
struct Grounds {
    QColor window;
    QColor button;
    QColor base; // of fields and lists
    QColor text;
    QColor link;
};

constexpr Grounds light{.window = {243, 243, 246},
                        .button = {234, 234, 239},
                        .base = {255, 255, 255},
                        .text = {28, 30, 38},
                        .link = {9, 99, 194}};
constexpr Grounds dark{.window = {37, 39, 46},
                       .button = {56, 59, 68},
                       .base = {27, 28, 34},
                       .text = {238, 239, 243},
                       .link = {112, 178, 255}};

constexpr double alternateShade = 0.03; // of the text's colour
constexpr double placeholderOpacity = 0.6;
constexpr double disabledOpacity = 0.45;

/// By how much a scale factor may differ from a whole number and still count as whole.
constexpr double scaleTolerance = 0.02;

QPalette paletteOf(const Grounds& grounds) {
    QPalette palette{grounds.button, grounds.window};
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, grounds.text);
        palette.setColor(QPalette::Disabled, role, faded(grounds.text, disabledOpacity));
    }
    palette.setColor(QPalette::Base, grounds.base);
    palette.setColor(QPalette::AlternateBase,
                     laidOver(faded(grounds.text, alternateShade), grounds.base));
    palette.setColor(QPalette::PlaceholderText, faded(grounds.text, placeholderOpacity));
    palette.setColor(QPalette::ToolTipBase, grounds.base);
    palette.setColor(QPalette::ToolTipText, grounds.text);
    palette.setColor(QPalette::Link, grounds.link);
    palette.setColor(QPalette::LinkVisited, grounds.link);
    palette.setColor(QPalette::Highlight, Brand::coral);
    palette.setColor(QPalette::HighlightedText, Brand::navy);
    return palette;
}

/// Whether the palette is the style's default, which means that the desktop provides no colours.
bool isStylesOwn(const QPalette& palette) {
    const QPalette standard = QApplication::style()->standardPalette();
    constexpr std::array roles{QPalette::Window, QPalette::WindowText, QPalette::Base,
                               QPalette::Text, QPalette::Button};
    return std::ranges::all_of(roles, [&](QPalette::ColorRole role) {
        return palette.color(QPalette::Active, role) == standard.color(QPalette::Active, role);
    });
}

/// Whether the display's resolution already includes the text scale. For X11 programs GNOME raises
/// the resolution to a whole scale factor times the text scale, and Qt then enlarges everything.
bool resolutionHas(double textScale) {
    const QScreen* screen = QGuiApplication::primaryScreen();
    const double factor = (screen ? screen->devicePixelRatio() : 1) / textScale;
    return factor > 1 - scaleTolerance && std::abs(factor - std::round(factor)) < scaleTolerance;
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

ApplicationTheme::ApplicationTheme()
    : coloursAreOurs_{isStylesOwn(QApplication::palette())},
      font_{QApplication::font()} {
    applyScheme(Appearance::Scheme::noPreference);
}

void ApplicationTheme::follow(AppearanceSource& source) {
    source.follow([this](const Appearance& appearance) { apply(appearance); });
}

void ApplicationTheme::apply(const Appearance& appearance) {
    setAnimationsEnabled(appearance.animations);
    applyScheme(appearance.scheme);
    applyTextScale(appearance.textScale);
}

void ApplicationTheme::applyScheme(Appearance::Scheme scheme) const {
    if (!coloursAreOurs_) return;
    const QPalette palette = scheme == Appearance::Scheme::dark ? darkPalette() : lightPalette();
    if (QApplication::palette() != palette) QApplication::setPalette(palette);
}

void ApplicationTheme::applyTextScale(double scale) {
    if (resolutionHas(scale)) scale = 1;
    if (scale == textScale_) return;
    // While the font is unscaled Qt keeps it up to date with the desktop, so read it just before
    // the first scaling.
    if (textScale_ == 1) font_ = QApplication::font();
    textScale_ = scale;
    QApplication::setFont(scaled(font_, scale));
}

QPalette lightPalette() {
    return paletteOf(light);
}

QPalette darkPalette() {
    return paletteOf(dark);
}

} // namespace quillon
