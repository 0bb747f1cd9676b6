#pragma once

#include "artwork/Symbols.h"
#include "ui/accessibility/View.h"

#include <string>

class QPainter;

namespace quillon {

/// How a symbol looks. `size` is in points of the design, like that of a TextStyle.
struct SymbolLook {
    double size = 13;
    SymbolWeight weight = SymbolWeight::regular;
    Tint ink = Ink::primary;
    /// The width that it asks for at least, in points of the design. With the same frame, symbols
    /// of several rows stand below each other.
    double frameWidth = 0;
};

/// One symbol, centred. It is decoration unless it has an accessible name.
class SymbolView : public View {
    Q_OBJECT

public:
    explicit SymbolView(std::string symbol, SymbolLook look = {});

    void setSymbol(const std::string& symbol);
    [[nodiscard]] const std::string& symbol() const { return symbol_; }
    void setLook(const SymbolLook& look);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::string symbol_;
    SymbolLook look_;
};

/// Paints a symbol centred in `frame`, `size` device-independent pixels large, aligned to whole
/// pixels of the screen.
void paintSymbol(QPainter& painter, const QRectF& frame, const std::string& symbol, double size,
                 QColor color, SymbolWeight weight = SymbolWeight::regular);

/// The side of a symbol beside text of this style, in device-independent pixels.
[[nodiscard]] double symbolSide(const TextStyle& style);

/// The width in whole pixels of such a symbol and, if `withGap`, of the gap between it and the
/// text.
[[nodiscard]] double symbolRoom(const TextStyle& style, bool withGap);

/// The weight for symbols beside text of this weight.
[[nodiscard]] SymbolWeight symbolWeight(QFont::Weight weight);

} // namespace quillon
