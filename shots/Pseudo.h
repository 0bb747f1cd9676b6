#pragma once

#include <QTranslator>

namespace quillon::test {

/// The text in a made-up language: every letter gets an accent, and there are 40 % more letters.
/// Keeps what a translation has to keep: places (%1, %n), the marks of mnemonics, HTML tags, stars,
/// and characters other than letters.
[[nodiscard]] QString pseudo(const QString& text);

/// Whether the text contains a letter that pseudo() would have changed.
[[nodiscard]] bool isUntranslated(const QString& text);

/// Translates every text of the program into that language.
class PseudoTranslator : public QTranslator {
public:
    using QTranslator::QTranslator;

    [[nodiscard]] bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* note,
                      int count) const override;
};

} // namespace quillon::test
