#include "ui/text/TextBlock.h"

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

/// Keeps what is before it and what is after it on one line, and shows nothing.
constexpr QChar joiner{0x2060};

/// Bold parts are names and commands: "/newbot" must not break behind its slash.
QString joined(QString name) {
    return name.replace(QLatin1Char{'/'}, QStringLiteral("/") + joiner);
}

} // namespace

struct TextBlock::Parts {
    QString text;
    std::vector<QTextLayout::FormatRange> formats;
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
        const QString content =
            joined(text.mid(open + stars().size(), close - open - stars().size()));
        QTextLayout::FormatRange range{.start = static_cast<int>(parts.text.size()),
                                       .length = static_cast<int>(content.size()),
                                       .format = {}};
        range.format.setFontWeight(QFont::Bold);
        parts.formats.push_back(range);
        parts.text += content;
        from = close + stars().size();
    }
    parts.text += text.mid(from);
    return parts;
}

/// Two "&" stand for one.
TextBlock::Parts TextBlock::titleParts(const QString& text, bool underlined) {
    Parts parts;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool mark = text[i] == QLatin1Char{'&'} && i + 1 < text.size();
        if (mark) ++i;
        if (mark && underlined && text[i] != QLatin1Char{'&'}) {
            parts.formats.push_back(
                {.start = static_cast<int>(parts.text.size()), .length = 1, .format = {}});
            parts.formats.back().format.setFontUnderline(true);
        }
        parts.text += text[i];
    }
    return parts;
}

TextBlock::TextBlock(Parts parts, const QFont& font, Qt::LayoutDirection direction)
    : text_{std::move(parts.text)},
      font_{font},
      formats_{std::move(parts.formats)},
      direction_{direction} {
    layout_.setFont(font_);
}

TextBlock::TextBlock(const QString& text, const QFont& font, Qt::LayoutDirection direction)
    : TextBlock{parts(text), font, direction} {}

TextBlock TextBlock::title(const QString& text, const QFont& font, Qt::LayoutDirection direction,
                           bool underlined) {
    return TextBlock{titleParts(text, underlined), font, direction};
}

/// Between the stars comes what is never seen: a word joiner.
QString TextBlock::verbatim(QString text) {
    while (text.contains(stars())) // three stars make two pairs
        text.replace(stars(), QStringLiteral("*\u2060*"));
    return text;
}

QString TextBlock::plain(const QString& text) {
    return parts(text).text.remove(joiner);
}

QSizeF TextBlock::wrap(double width) {
    elided_ = false;
    layout_.setText(text_);
    layout_.setFormats(QList<QTextLayout::FormatRange>{formats_.begin(), formats_.end()});
    return layOut(width);
}

QSizeF TextBlock::elide(double width, Qt::TextElideMode mode) {
    if (naturalWidth() <= width) return wrap(width);
    const QString line = QFontMetricsF{font_}.elidedText(text_, mode, width);
    elided_ = true;
    layout_.setText(line);
    layout_.clearFormats();
    // A rounding more of width must not bring a second line.
    return layOut(width, QTextOption::NoWrap);
}

QString TextBlock::shownText() const {
    return layout_.text().remove(joiner);
}

double TextBlock::naturalWidth() {
    return wrap(unlimited).width();
}

double TextBlock::lineHeight() const {
    return std::ceil(QFontMetricsF{font_}.height());
}

QSizeF TextBlock::layOut(double width, QTextOption::WrapMode wrapMode) {
    QTextOption option;
    // Names and untranslated texts are written their own way, wherever the lines begin.
    option.setTextDirection(Qt::LayoutDirectionAuto);
    option.setAlignment(Qt::AlignAbsolute |
                        (direction_ == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft));
    option.setWrapMode(wrapMode);
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
