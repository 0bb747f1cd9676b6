#include "ui/views/TextBlock.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextOption>

#include <algorithm>
#include <cmath>

namespace quillon {
namespace {

/// Wider than any text, and far from what the layout's fixed-point numbers hold.
constexpr double unlimited = 100'000;

const QString& stars() {
    static const QString text = QStringLiteral("**");
    return text;
}

} // namespace

struct TextBlock::Parts {
    QString text;
    std::vector<QTextLayout::FormatRange> bold;
};

/// Stars without a second pair after them are part of the text.
TextBlock::Parts TextBlock::parts(const QString& text) {
    Parts parts;
    qsizetype from = 0;
    while (true) {
        const qsizetype open = text.indexOf(stars(), from);
        const qsizetype close = open < 0 ? -1 : text.indexOf(stars(), open + stars().size());
        if (close < 0) break;
        parts.text += text.mid(from, open - from);
        const QString content = text.mid(open + stars().size(), close - open - stars().size());
        QTextLayout::FormatRange range{.start = static_cast<int>(parts.text.size()),
                                       .length = static_cast<int>(content.size()),
                                       .format = {}};
        range.format.setFontWeight(QFont::Bold);
        parts.bold.push_back(range);
        parts.text += content;
        from = close + stars().size();
    }
    parts.text += text.mid(from);
    return parts;
}

TextBlock::TextBlock(const QString& text, const QFont& font, Qt::LayoutDirection direction)
    : font_{font},
      direction_{direction} {
    Parts found = parts(text);
    text_ = std::move(found.text);
    bold_ = std::move(found.bold);
    layout_.setFont(font_);
}

QString TextBlock::plain(const QString& text) {
    return parts(text).text;
}

QSizeF TextBlock::wrap(double width) {
    elided_ = false;
    layout_.setText(text_);
    layout_.setFormats(QList<QTextLayout::FormatRange>{bold_.begin(), bold_.end()});
    return layOut(width);
}

QSizeF TextBlock::elide(double width, Qt::TextElideMode mode) {
    if (naturalWidth() <= width) return wrap(width);
    const QString line = QFontMetricsF{font_}.elidedText(text_, mode, width);
    elided_ = true;
    layout_.setText(line);
    layout_.clearFormats();
    return layOut(width);
}

double TextBlock::naturalWidth() {
    return wrap(unlimited).width();
}

double TextBlock::lineHeight() const {
    return std::ceil(QFontMetricsF{font_}.height());
}

QSizeF TextBlock::layOut(double width) {
    QTextOption option;
    option.setTextDirection(direction_);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout_.setTextOption(option);
    double bottom = 0;
    double widest = 0;
    layout_.beginLayout();
    for (QTextLine line = layout_.createLine(); line.isValid(); line = layout_.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, bottom});
        bottom += std::ceil(line.height());
        widest = std::max(widest, line.naturalTextWidth());
    }
    layout_.endLayout();
    return {std::ceil(widest), std::max(bottom, lineHeight())};
}

void TextBlock::paint(QPainter& painter, QPointF topLeft) const {
    layout_.draw(&painter, topLeft);
}

} // namespace quillon
