#pragma once

#include <QFont>
#include <QSizeF>
#include <QString>
#include <QTextLayout>
#include <QTextOption>

#include <vector>

class QPainter;

namespace quillon {

/// A paragraph, laid out: wrapped into a width or cut to a line, with bold parts.
class TextBlock {
public:
    /// `text` is written with its bold parts between pairs of two stars: "Tap **Save** twice".
    TextBlock(const QString& text, const QFont& font, Qt::LayoutDirection direction);

    /// The title of a control, whose mnemonic is marked by an "&" and, with `underlined`, shown.
    [[nodiscard]] static TextBlock title(const QString& text, const QFont& font,
                                         Qt::LayoutDirection direction, bool underlined);

    /// The text without stars.
    [[nodiscard]] static QString plain(const QString& text);
    /// For texts from outside: one that is shown as it is, whatever stars are in it.
    [[nodiscard]] static QString verbatim(QString text);

    /// Wraps at words (and inside a word that is wider than a line) and gives the size it takes, in
    /// whole pixels, at most `width` wide.
    QSizeF wrap(double width);
    /// Makes one line of it, which loses what does not fit at its end or in its middle.
    QSizeF elide(double width, Qt::TextElideMode mode);
    /// Whether elide() lost something.
    [[nodiscard]] bool elided() const { return elided_; }
    /// What was laid out last: the text without what it lost.
    [[nodiscard]] QString shownText() const;
    /// The width it has on one line.
    [[nodiscard]] double naturalWidth();
    /// The height of its first line.
    [[nodiscard]] double lineHeight() const;

    /// Draws with the painter's pen what was laid out last; `topLeft` is that of the width given.
    void paint(QPainter& painter, QPointF topLeft) const;

private:
    struct Parts;
    TextBlock(Parts parts, const QFont& font, Qt::LayoutDirection direction);
    static Parts parts(const QString& text);
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
