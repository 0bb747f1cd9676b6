#include "ui/controls/Buttons.h"

#include "artwork/Brand.h"
#include "ui/text/SymbolView.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace quillon {
namespace {

/// What the kinds of buttons differ in.
struct KindLook {
    int beside;         // pixels between the edge and the text on either side
    int above;          // pixels above and below the text
    double leastHeight; // in points of the design
    Tint ink;
};

const KindLook& kindLook(ButtonKind kind) {
    static const std::array table{
        KindLook{12, 4, 28, Ink::primary},     // bordered
        KindLook{14, 4, 28, Brand::navy},      // prominent
        KindLook{6, 3, 0, Ink::secondary},     // borderless
        KindLook{12, 4, 28, Ink::destructive}, // destructive
    };
    return table.at(static_cast<std::size_t>(kind));
}

constexpr int hoveredProminent = 106; // percent of its lightness
constexpr int pressedProminent = 108;

} // namespace

TextButton::TextButton(const QString& text, std::string symbol, ButtonLook look, QWidget* parent)
    : PressedByReturn{text, parent},
      symbol_{std::move(symbol)},
      look_{look} {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
}

void TextButton::setSymbol(const std::string& symbol) {
    if (symbol == symbol_) return;
    symbol_ = symbol;
    themeChanged();
}

int TextButton::inset() const {
    return kindLook(look_.kind).beside;
}

Tint TextButton::ink() const {
    const bool lit = look_.kind == ButtonKind::borderless && underMouse();
    return lit ? Tint{Ink::primary} : kindLook(look_.kind).ink;
}

double TextButton::contentWidth() const {
    const double text =
        QFontMetricsF{Theme::font(look_.style)}.size(Qt::TextShowMnemonic, this->text()).width();
    return std::ceil(text) + symbolWidth();
}

double TextButton::symbolWidth() const {
    return symbol_.empty() ? 0 : symbolRoom(look_.style, !text().isEmpty());
}

QSize TextButton::sizeHint() const {
    const KindLook& kind = kindLook(look_.kind);
    const double line = QFontMetricsF{Theme::font(look_.style)}.height();
    const double height = std::max(Theme::length(kind.leastHeight), line + 2 * kind.above);
    return wholeSize(contentWidth() + 2 * kind.beside, height);
}

void TextButton::paintEvent(QPaintEvent* /*event*/) {
    const Theme theme = this->theme();
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing); // also smooths the line below the mnemonic
    paintGround(painter, theme);
    paintContent(painter, theme);
    if (!showsFocus()) return;
    const bool prominent = look_.kind == ButtonKind::prominent;
    theme.paintFocusRing(painter, rect(), Space::controlRadius,
                         prominent ? Tint{Brand::navy} : Tint{Ink::accent});
}

void TextButton::paintGround(QPainter& painter, const Theme& theme) const {
    const bool lit = underMouse() && isEnabled();
    QColor fill;
    QPen line{Qt::NoPen};
    switch (look_.kind) {
    case ButtonKind::prominent:
        fill = theme.fill(isDown() ? Brand::coral.darker(pressedProminent)
                          : lit    ? Brand::coral.lighter(hoveredProminent)
                                   : Brand::coral);
        break;
    case ButtonKind::bordered:
    case ButtonKind::destructive:
        fill = isDown() ? theme.pressedFill() : lit ? theme.hoverFill() : theme.quaternaryFill();
        line = theme.separator();
        break;
    case ButtonKind::borderless:
        if (!lit && !isDown()) return;
        fill = isDown() ? theme.hoverFill() : theme.quaternaryFill();
        break;
    }
    paintBox(painter, rect(), Space::controlRadius, fill, line);
}

void TextButton::paintContent(QPainter& painter, const Theme& theme) const {
    const QColor color = theme.color(ink());
    const bool rightToLeft = layoutDirection() == Qt::RightToLeft;
    const double room = width() - 2.0 * inset();
    const double content = std::min(room, contentWidth());
    const double left = (width() - content) / 2;
    if (!symbol_.empty()) {
        const double side = symbolSide(look_.style);
        const double x = rightToLeft ? left + content - side : left;
        paintSymbol(painter, {x, 0, side, static_cast<double>(height())}, symbol_, side,
                    look_.symbolInk ? theme.color(*look_.symbolInk) : color,
                    symbolWeight(look_.style.weight));
    }
    const QFont font = Theme::font(look_.style);
    const QRectF box{rightToLeft ? left : left + symbolWidth(), 0, content - symbolWidth(),
                     static_cast<double>(height())};
    painter.setFont(font);
    painter.setPen(color);
    painter.setLayoutDirection(text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    painter.drawText(
        box, Qt::AlignCenter | (underlinesMnemonic() ? Qt::TextShowMnemonic : Qt::TextHideMnemonic),
        QFontMetricsF{font}.elidedText(text(), Qt::ElideRight, box.width(), Qt::TextShowMnemonic));
}

} // namespace quillon
