#include "base/ShownText.h"

#include <QTextBoundaryFinder>

namespace quillon {

namespace {

/// The UTF-16 units on the far side of a cut that tell whether a character ends there.
constexpr qsizetype context = 64;

/// The whole characters among the first `length` units.
QString beginning(const QString& text, qsizetype length) {
    const QString piece = text.left(length + context);
    QTextBoundaryFinder characters{QTextBoundaryFinder::Grapheme, piece};
    characters.setPosition(length);
    qsizetype end = characters.isAtBoundary() ? length : characters.toPreviousBoundary();
    if (end <= 0) end = piece[length - 1].isHighSurrogate() ? length - 1 : length;
    return piece.left(end);
}

/// The whole characters among the last `length` units.
QString ending(const QString& text, qsizetype length) {
    const QString piece = text.right(length + context);
    QTextBoundaryFinder characters{QTextBoundaryFinder::Grapheme, piece};
    const qsizetype cut = piece.size() - length;
    characters.setPosition(cut);
    const qsizetype begin = characters.isAtBoundary() ? cut : characters.toNextBoundary();
    return begin < 0 ? QString{} : piece.mid(begin);
}

} // namespace

QString shortened(const QString& text, qsizetype longest) {
    if (text.size() <= longest) return text;
    const qsizetype half = longest / 2;
    return beginning(text, half) + QChar{0x2026} + ending(text, half);
}

} // namespace quillon
