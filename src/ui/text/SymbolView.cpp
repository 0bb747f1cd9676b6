#include "ui/text/SymbolView.h"

#include <QGuiApplication>
#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace quillon {

SymbolView::SymbolView(std::string symbol, SymbolLook look, QWidget* parent)
    : View{parent},
      symbol_{std::move(symbol)},
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

void SymbolView::setFrameWidth(double points) {
    frameWidth_ = points;
    updateGeometry();
}

QSize SymbolView::sizeHint() const {
    const double scale = Theme::textScale();
    const int height = static_cast<int>(std::ceil(look_.size * scale));
    return {std::max(height, static_cast<int>(std::ceil(frameWidth_ * scale))), height};
}

void SymbolView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    paintSymbol(painter, rect(), symbol_, look_.size * Theme::textScale(), theme().color(look_.ink),
                look_.weight);
}

namespace {

/// Symbols that point in the direction of writing.
constexpr std::array<std::string_view, 3> directed{"arrow.right.circle.fill", "checklist",
                                                   "text.alignleft"};

bool isMirrored(const std::string& symbol) {
    return QGuiApplication::isRightToLeft() &&
           std::ranges::find(directed, symbol) != directed.end();
}

} // namespace

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

SymbolWeight symbolWeight(QFont::Weight weight) {
    if (weight >= QFont::Bold) return SymbolWeight::bold;
    return weight >= QFont::Medium ? SymbolWeight::semibold : SymbolWeight::regular;
}

} // namespace quillon
