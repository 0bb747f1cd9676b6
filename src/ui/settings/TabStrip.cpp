#include "ui/settings/TabStrip.h"

#include "ui/text/SymbolView.h"

#include <QFontMetricsF>
#include <QHoverEvent>
#include <QPainter>

#include <algorithm>

namespace quillon {

namespace {

constexpr double symbolPoints = 20;
constexpr double leastWidth = 84;
constexpr double besideTitle = 14;
constexpr double aboveSymbol = 7;
constexpr double belowSymbol = 4;
constexpr double belowTitle = 6;
constexpr double betweenTabs = 2; // on either side of a tab

QFontMetricsF titleMetrics() {
    return QFontMetricsF{Theme::font(Text::caption.semibold())};
}

} // namespace

TabStrip::TabStrip() {
    describe();
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(false);
    setElideMode(Qt::ElideNone);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void TabStrip::add(const QString& title, const std::string& symbol) {
    symbols_.push_back(symbol);
    addTab(title);
}

QSize TabStrip::tabSizeHint(int index) const {
    const QFontMetricsF metrics = titleMetrics();
    const double title = metrics.size(Qt::TextShowMnemonic, tabText(index)).width();
    const double width =
        std::max(Theme::length(leastWidth), title + 2 * besideTitle) + 2 * betweenTabs;
    const double height =
        aboveSymbol + Theme::length(symbolPoints) + belowSymbol + metrics.height() + belowTitle;
    return wholeSize(width, height);
}

void TabStrip::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing); // smooths the line below the mnemonic
    for (int i = 0; i < count(); ++i)
        paintTab(painter, i);
}

void TabStrip::paintTab(QPainter& painter, int index) const {
    const Theme theme = this->theme();
    const bool current = index == currentIndex();
    const QRectF box = QRectF{tabRect(index)}.adjusted(betweenTabs, 0, -betweenTabs, 0);
    if (current || index == hovered_) {
        paintBox(painter, box, Space::controlRadius,
                 current ? theme.hoverFill() : theme.quaternaryFill());
    }
    const double side = Theme::length(symbolPoints);
    const Tint ink = current ? Ink::accent : Ink::secondary;
    paintSymbol(painter, {box.left(), box.top() + aboveSymbol, box.width(), side},
                symbols_.at(static_cast<std::size_t>(index)), side, theme.color(ink));
    const double top = box.top() + aboveSymbol + side + belowSymbol;
    painter.setFont(Theme::font(current ? Text::caption.semibold() : Text::caption));
    painter.setPen(theme.color(current ? Ink::primary : Ink::secondary));
    painter.drawText(QRectF{box.left(), top, box.width(), titleMetrics().height()},
                     Qt::AlignCenter |
                         (underlinesMnemonic() ? Qt::TextShowMnemonic : Qt::TextHideMnemonic),
                     tabText(index));
    if (current && showsFocus()) theme.paintFocusRing(painter, box, Space::controlRadius);
}

bool TabStrip::event(QEvent* event) {
    int hovered = hovered_;
    if (event->type() == QEvent::HoverMove || event->type() == QEvent::HoverEnter)
        hovered = tabAt(static_cast<QHoverEvent*>(event)->position().toPoint());
    if (event->type() == QEvent::HoverLeave) hovered = -1;
    if (hovered != hovered_) {
        hovered_ = hovered;
        update();
    }
    return Themed::event(event);
}

} // namespace quillon
