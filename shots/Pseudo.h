#pragma once

#include <QTranslator>

namespace quillon::test {

/// The text in a language of which nothing is real but its length: every letter has an accent, and
/// there are 40 % more of them. What a catalogue has to keep is kept: places (%1, %n), the marks of
/// mnemonics, HTML tags, stars, and characters that are no letters.
[[nodiscard]] QString pseudo(const QString& text);

/// Whether a letter is left in the text that pseudo() would have changed.
[[nodiscard]] bool isUntranslated(const QString& text);

/// A catalogue of that language, for every text of the program.
class PseudoTranslator : public QTranslator {
public:
    using QTranslator::QTranslator;

    [[nodiscard]] bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* note,
                      int count) const override;
};

} // namespace quillon::test
