#pragma once

#include <QColor>
#include <QPixmap>

#include <span>
#include <string_view>

namespace quillon {

/// A symbol's name, as the rest of the program knows it, and the name of the icon that draws it.
struct SymbolEntry {
    std::string_view name;
    std::string_view icon;
};

/// Every symbol there is.
std::span<const SymbolEntry> symbols();

/// The name of the icon that draws the symbol; a name that is not in the table gets the icon of
/// "number", as a topic of an unknown kind does.
std::string_view symbolIcon(std::string_view name);

/// How heavy a symbol's lines are, to match the type that it stands beside.
enum class SymbolWeight { regular, semibold, bold };

/// The symbol in one colour, alpha included: a square of `size` device-independent pixels, drawn
/// from outlines for exactly this size and scale and kept in Qt's pixmap cache.
QPixmap symbolPixmap(std::string_view name, double size, QColor color, double devicePixelRatio,
                     SymbolWeight weight = SymbolWeight::regular);

} // namespace quillon
