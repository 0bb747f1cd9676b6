#include "ui/setup/Badge.h"

#include "artwork/Colors.h"
#include "artwork/Palette.h"
#include "ui/text/SymbolView.h"

#include <QLocale>
#include <QPainter>

#include <cmath>

namespace quillon {

namespace {

constexpr double diameter = 24;
constexpr double symbolPoints = 12;
constexpr double tintOpacity = 0.16;

} // namespace

Badge::Badge() {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

int Badge::side() {
    return static_cast<int>(std::lround(Theme::length(diameter)));
}

void Badge::setNumber(int number) {
    set(number, {}, false);
}

void Badge::setSymbol(const std::string& symbol) {
    set(0, symbol, false);
}

void Badge::setDone() {
    set(0, "checkmark", true);
}

void Badge::set(int number, const std::string& symbol, bool done) {
    if (number == number_ && symbol == symbol_ && done == done_) return;
    number_ = number;
    symbol_ = symbol;
    done_ = done;
    setAccessibleRole(accessibleText().isEmpty() ? QAccessible::Graphic : QAccessible::StaticText);
    announceText();
    update();
}

QSize Badge::sizeHint() const {
    return {side(), side()};
}

QString Badge::accessibleText() const {
    if (done_) return tr("Done");
    return number_ > 0 ? locale().toString(number_) : QString{};
}

void Badge::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    const Theme theme = this->theme();
    const QColor tint = done_ ? Palette::green : theme.color(Ink::accent);
    const QRectF circle{QPointF{(width() - side()) / 2.0, (height() - side()) / 2.0},
                        QSizeF{static_cast<double>(side()), static_cast<double>(side())}};
    painter.setPen(Qt::NoPen);
    painter.setBrush(done_ ? theme.fill(tint) : faded(tint, tintOpacity));
    painter.drawEllipse(circle);
    const QColor ink = done_ ? Theme::onTile(tint) : theme.readable(tint);
    if (symbol_.empty()) {
        painter.setPen(ink);
        painter.setFont(Theme::font(Text::callout.semibold()));
        painter.drawText(circle, Qt::AlignCenter, locale().toString(number_));
    } else {
        paintSymbol(painter, circle, symbol_, Theme::length(symbolPoints), ink,
                    done_ ? SymbolWeight::bold : SymbolWeight::regular);
    }
}

} // namespace quillon
