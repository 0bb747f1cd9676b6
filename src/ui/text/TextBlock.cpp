#include "ui/text/TextBlock.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextOption>

#include <algorithm>
#include <cmath>

namespace quillon {
namespace {

/// A width beyond that of any text, but within the range of the layout's fixed-point numbers.
constexpr double unlimited = 100'000;

/// An invisible character that keeps what is before it and what is after it on one line.
constexpr QChar joiner{0x2060};

/// Bold parts are names and commands, and one like "/newbot" must not break after its slash.
QString joined(QString name) {
    return name.replace(QLatin1Char{'/'}, QStringLiteral("/") + joiner);
}

} // namespace

struct TextBlock::Parts {
    QString text;
    std::vector<QTextLayout::FormatRange> formats;

    void append(const QString& part, const QTextCharFormat& format) {
        formats.push_back({.start = static_cast<int>(text.size()),
                           .length = static_cast<int>(part.size()),
                           .format = format});
        text += part;
    }
};

TextBlock::Parts TextBlock::styledParts(const StyledText& text) {
    Parts parts;
    for (const auto& [words, bold] : text.runs()) {
        if (bold) {
            QTextCharFormat format;
            format.setFontWeight(QFont::Bold);
            parts.append(joined(words), format);
        } else {
            parts.text += words;
        }
    }
    return parts;
}

/// Two "&" stand for a visible one.
TextBlock::Parts TextBlock::titleParts(const QString& text, bool underlined) {
    Parts parts;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool mark = text[i] == QLatin1Char{'&'} && i + 1 < text.size();
        if (mark) ++i;
        if (mark && underlined && text[i] != QLatin1Char{'&'}) {
            QTextCharFormat underline;
            underline.setFontUnderline(true);
            parts.append(text[i], underline);
        } else {
            parts.text += text[i];
        }
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

TextBlock::TextBlock(const StyledText& text, const QFont& font, Qt::LayoutDirection direction)
    : TextBlock{styledParts(text), font, direction} {}

TextBlock TextBlock::title(const QString& text, const QFont& font, Qt::LayoutDirection direction,
                           bool underlined) {
    return TextBlock{titleParts(text, underlined), font, direction};
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
    // Without wrapping, a rounding error in the width cannot bring a second line.
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
    // Names and untranslated texts keep their own direction, whichever side the lines start from.
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
