#include "ui/text/IconLabel.h"

#include "ui/accessibility/Accessibility.h"
#include "ui/text/Keycap.h"
#include "ui/text/SymbolView.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillon {
namespace {

// The most and the least width that a wrapped text asks for, in points of the design.
constexpr double comfortableWidth = 360;
constexpr double leastWidth = 56;

} // namespace

IconLabel::IconLabel(StyledText text, std::string symbol, LabelLook look, QWidget* parent)
    : View{parent},
      text_{std::move(text)},
      symbol_{std::move(symbol)},
      look_{look} {
    setAccessibleRole(QAccessible::StaticText);
    QSizePolicy policy{QSizePolicy::Preferred, QSizePolicy::Preferred};
    policy.setHeightForWidth(look_.overflow == Overflow::wrap);
    setSizePolicy(policy);
}

void IconLabel::setText(const StyledText& text) {
    if (text == text_) return;
    text_ = text;
    themeChanged();
    announceText();
    if (accessibleRole() != QAccessible::StaticText) readOut(*this);
}

void IconLabel::setSymbol(const std::string& symbol) {
    if (symbol == symbol_) return;
    symbol_ = symbol;
    themeChanged();
}

void IconLabel::setLook(const LabelLook& look) {
    look_ = look;
    QSizePolicy policy = sizePolicy();
    policy.setHeightForWidth(hasHeightForWidth());
    setSizePolicy(policy);
    themeChanged();
}

QString IconLabel::shownText() const {
    if (look_.overflow == Overflow::wrap) return text_.plain();
    TextBlock text = block();
    layOut(text, width() - indent());
    return text.shownText();
}

TextBlock IconLabel::block() const {
    return TextBlock{text_, Theme::font(look_.style), layoutDirection()};
}

double IconLabel::indent() const {
    return symbol_.empty() ? 0 : symbolRoom(look_.style, !text_.isEmpty());
}

QSizeF IconLabel::layOut(TextBlock& block, double width) const {
    switch (look_.overflow) {
    case Overflow::elideEnd:
        return block.elide(width, Qt::ElideRight);
    case Overflow::elideMiddle:
        return block.elide(width, Qt::ElideMiddle);
    case Overflow::wrap:
        break;
    }
    return block.wrap(width);
}

QSize IconLabel::sizeHint() const {
    TextBlock text = block();
    const double natural = text.naturalWidth();
    const bool wraps = look_.overflow == Overflow::wrap;
    const double most = wraps ? Theme::length(comfortableWidth) : natural;
    const QSizeF size = text.wrap(std::min(natural, most));
    return {static_cast<int>(std::ceil(size.width() + indent())), static_cast<int>(size.height())};
}

QSize IconLabel::minimumSizeHint() const {
    TextBlock text = block();
    const double least = std::min(text.naturalWidth(), Theme::length(leastWidth));
    return {static_cast<int>(std::ceil(least + indent())), static_cast<int>(text.lineHeight())};
}

bool IconLabel::hasHeightForWidth() const {
    return look_.overflow == Overflow::wrap;
}

int IconLabel::heightForWidth(int width) const {
    TextBlock text = block();
    return static_cast<int>(layOut(text, std::max(1.0, width - indent())).height());
}

QString IconLabel::accessibleText() const {
    return spokenText(text_.plain());
}

void IconLabel::paintEvent(QPaintEvent* /*event*/) {
    const Theme theme = this->theme();
    const double before = indent();
    TextBlock text = block();
    double room = std::max(1.0, width() - before);
    if (look_.align & Qt::AlignHCenter) room = std::min(room, text.naturalWidth());
    const QSizeF size = layOut(text, room);
    const double left = look_.align & Qt::AlignHCenter ? (width() - before - room) / 2 : 0;
    const double top = std::floor((height() - size.height()) / 2);

    QPainter painter{this};
    const bool rightToLeft = layoutDirection() == Qt::RightToLeft;
    if (!symbol_.empty()) {
        const double side = symbolSide(look_.style);
        const double x = rightToLeft ? width() - left - side : left;
        paintSymbol(painter, {x, top, side, text.lineHeight()}, symbol_, side,
                    theme.color(look_.symbolInk.value_or(look_.ink)),
                    symbolWeight(look_.style.weight));
    }
    painter.setPen(theme.color(look_.ink));
    text.paint(painter, {rightToLeft ? width() - left - before - room : left + before, top});
}

bool IconLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty()) return View::event(event);
    TextBlock text = block();
    layOut(text, width() - indent());
    if (text.elided()) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                           QStringLiteral("<span>%1</span>").arg(accessibleText().toHtmlEscaped()),
                           this);
    } else {
        event->ignore();
    }
    return true;
}

} // namespace quillon
