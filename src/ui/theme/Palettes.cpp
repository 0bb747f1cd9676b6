#include "ui/theme/Palettes.h"

#include "artwork/Brand.h"
#include "ui/theme/Colors.h"

namespace quillon {
namespace {

/// The colours that the others derive from, each lying on the one before it.
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

} // namespace

QPalette lightPalette() {
    return paletteOf(light);
}

QPalette darkPalette() {
    return paletteOf(dark);
}

} // namespace quillon
