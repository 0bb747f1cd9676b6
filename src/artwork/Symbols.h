#pragma once

#include <QColor>
#include <QPixmap>

#include <span>
#include <string_view>

namespace quillon {

/// The program's name for a symbol, and the name of the icon that draws it.
struct SymbolEntry {
    std::string_view name;
    std::string_view icon;
};

/// All symbols.
std::span<const SymbolEntry> symbols();

/// The name of the icon that draws the symbol. Unknown symbols get the icon of "number", which is
/// also the symbol of topics of an unknown kind.
std::string_view symbolIcon(std::string_view name);

/// The weight of a symbol's lines, to match the text beside it.
enum class SymbolWeight { regular, semibold, bold };

/// The symbol in one colour, whose alpha counts: a square with sides of `size` device-independent
/// pixels, drawn for exactly this size and scale. Kept in Qt's pixmap cache.
QPixmap symbolPixmap(std::string_view name, double size, QColor color, double devicePixelRatio,
                     SymbolWeight weight = SymbolWeight::regular);

} // namespace quillon
