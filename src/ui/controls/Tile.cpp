#include "ui/controls/Tile.h"

#include "ui/text/SymbolView.h"

#include <QHBoxLayout>
#include <QPainter>

#include <cmath>
#include <utility>

namespace quillon {
namespace {

constexpr double sidePoints = 20;
// Shares of the side.
constexpr double symbolShare = 0.55;
constexpr double cornerShare = 0.27;

} // namespace

Tile::Tile(std::string symbol, QColor color) : symbol_{std::move(symbol)}, color_{color} {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Tile::setSymbol(const std::string& symbol, QColor color) {
    symbol_ = symbol;
    color_ = color;
    update();
}

QSize Tile::sizeHint() const {
    return {side(), side()};
}

int Tile::side() {
    return Theme::wholeLength(sidePoints);
}

void Tile::paint(QPainter& painter, const QRectF& box, const std::string& symbol, QColor color,
                 const Theme& theme) {
    paintBox(painter, box, box.width() * cornerShare, theme.fill(color));
    paintSymbol(painter, box, symbol, std::round(box.width() * symbolShare), Theme::onTile(color),
                SymbolWeight::semibold);
}

void Tile::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    const QSizeF size = sizeHint();
    const QPointF corner{(width() - size.width()) / 2, (height() - size.height()) / 2};
    paint(painter, {corner, size}, symbol_, color_, theme());
}

TileLabel::TileLabel(const QString& title, const std::string& symbol, QColor color,
                     const TextStyle& style) {
    setAccessibleRole(QAccessible::StaticText);
    setAccessibleName(title);
    auto* row = rowIn(this, 10);
    row->addWidget(new Tile{symbol, color});
    row->addWidget(new IconLabel{title, {}, {.style = style}}, 1);
}

} // namespace quillon
