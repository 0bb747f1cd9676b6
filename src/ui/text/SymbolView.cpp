#include "ui/text/SymbolView.h"

#include <QGuiApplication>
#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace quillon {

namespace {

// The side of a symbol beside text and the gap between them, as multiples of the text's size.
constexpr double symbolScale = 1.1;
constexpr double symbolGap = 0.46;

/// Symbols that point in the direction of writing.
constexpr std::array<std::string_view, 3> directed{"arrow.right.circle.fill", "checklist",
                                                   "text.alignleft"};

bool isMirrored(const std::string& symbol) {
    return QGuiApplication::isRightToLeft() &&
           std::ranges::find(directed, symbol) != directed.end();
}

} // namespace

SymbolView::SymbolView(std::string symbol, SymbolLook look)
    : symbol_{std::move(symbol)},
      look_{look} {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void SymbolView::setSymbol(const std::string& symbol) {
    if (symbol == symbol_) return;
    symbol_ = symbol;
    update();
}

void SymbolView::setLook(const SymbolLook& look) {
    look_ = look;
    themeChanged();
}

QSize SymbolView::sizeHint() const {
    const double scale = Theme::textScale();
    return wholeSize(std::max(look_.size, look_.frameWidth) * scale, look_.size * scale);
}

void SymbolView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    paintSymbol(painter, rect(), symbol_, look_.size * Theme::textScale(), theme().color(look_.ink),
                look_.weight);
}

void paintSymbol(QPainter& painter, const QRectF& frame, const std::string& symbol, double size,
                 QColor color, SymbolWeight weight) {
    QPixmap pixmap =
        symbolPixmap(symbol, size, color, painter.device()->devicePixelRatioF(), weight);
    if (isMirrored(symbol)) pixmap = pixmap.transformed(QTransform::fromScale(-1, 1));
    const QTransform toDevice = painter.deviceTransform();
    const QPointF corner{frame.center() - QPointF{size / 2, size / 2}};
    const QPointF whole = toDevice.map(corner).toPoint();
    painter.drawPixmap(toDevice.inverted().map(whole), pixmap);
}

double symbolSide(const TextStyle& style) {
    return style.points * Theme::textScale() * symbolScale;
}

double symbolRoom(const TextStyle& style, bool withGap) {
    const double gap = withGap ? style.points * Theme::textScale() * symbolGap : 0;
    return std::ceil(symbolSide(style) + gap);
}

SymbolWeight symbolWeight(QFont::Weight weight) {
    if (weight >= QFont::Bold) return SymbolWeight::bold;
    return weight >= QFont::Medium ? SymbolWeight::semibold : SymbolWeight::regular;
}

} // namespace quillon
