#include "ui/text/Chip.h"

#include "artwork/Colors.h"
#include "base/ShownText.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillon {
namespace {

constexpr double besideText = 10;
constexpr double aboveText = 3;
constexpr double tintOpacity = 0.30;
constexpr double borderOpacity = 0.55;
constexpr double leastText = 32;
constexpr TextStyle chipText{12, QFont::Medium};

} // namespace

Chip::Chip(const QString& text, QColor color) : text_{shortened(text)}, color_{color} {
    setAccessibleRole(QAccessible::StaticText);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

void Chip::setChip(const QString& text, QColor color) {
    const QString before = std::exchange(text_, shortened(text));
    color_ = color;
    themeChanged();
    if (text_ != before) announceText();
}

QSize Chip::sizeHint() const {
    const QFontMetricsF metrics{Theme::font(chipText)};
    return wholeSize(metrics.horizontalAdvance(text_) + 2 * besideText,
                     metrics.height() + 2 * aboveText);
}

QSize Chip::minimumSizeHint() const {
    const QSize full = sizeHint();
    const int least = static_cast<int>(std::ceil(Theme::length(leastText) + 2 * besideText));
    return {std::min(full.width(), least), full.height()};
}

void Chip::paintEvent(QPaintEvent* /*event*/) {
    const Theme theme = this->theme();
    QPainter painter{this};
    paintBox(painter, rect(), (height() - 1) / 2.0, theme.fill(faded(color_, tintOpacity)),
             theme.fill(faded(color_, borderOpacity)));
    const QFont font = Theme::font(chipText);
    const double room = width() - 2 * besideText;
    painter.setFont(font);
    painter.setPen(theme.color(Ink::primary));
    painter.setLayoutDirection(text_.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine,
                     QFontMetricsF{font}.elidedText(text_, Qt::ElideRight, std::ceil(room) + 1));
}

} // namespace quillon
