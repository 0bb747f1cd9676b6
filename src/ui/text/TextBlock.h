#pragma once

#include "ui/text/StyledText.h"

#include <QFont>
#include <QSizeF>
#include <QString>
#include <QTextLayout>
#include <QTextOption>

#include <vector>

class QPainter;

namespace quillon {

/// The layout of a paragraph, which is wrapped into a width or cut to a line.
class TextBlock {
public:
    TextBlock(const StyledText& text, const QFont& font, Qt::LayoutDirection direction);

    /// The title of a control, in which an "&" marks the mnemonic. If `underlined`, it is shown.
    [[nodiscard]] static TextBlock title(const QString& text, const QFont& font,
                                         Qt::LayoutDirection direction, bool underlined);

    /// Wraps the text at words, and inside a word only if it is wider than a line. Returns the size
    /// that it takes, in whole pixels, at most `width` wide.
    QSizeF wrap(double width);
    /// Makes one line of the text, and cuts what does not fit at its end or in its middle.
    QSizeF elide(double width, Qt::TextElideMode mode);
    /// Whether elide() has cut something.
    [[nodiscard]] bool elided() const { return elided_; }
    /// The text that was laid out last, without what was cut.
    [[nodiscard]] QString shownText() const;
    /// The width of the whole text on one line.
    [[nodiscard]] double naturalWidth();
    /// The height of its first line.
    [[nodiscard]] double lineHeight() const;

    /// Paints what was laid out last with the painter's pen. `topLeft` is the corner of the width
    /// that was given for the layout.
    void paint(QPainter& painter, QPointF topLeft) const;

private:
    struct Parts;
    TextBlock(Parts parts, const QFont& font, Qt::LayoutDirection direction);
    static Parts styledParts(const StyledText& text);
    static Parts titleParts(const QString& text, bool underlined);
    QSizeF layOut(double width,
                  QTextOption::WrapMode wrapMode = QTextOption::WrapAtWordBoundaryOrAnywhere);

    QString text_;
    QFont font_;
    std::vector<QTextLayout::FormatRange> formats_;
    Qt::LayoutDirection direction_;
    QTextLayout layout_;
    bool elided_ = false;
};

} // namespace quillon
