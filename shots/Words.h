#pragma once

#include <QString>

namespace quillon::test {

/// Has all texts from now on in the words of this catalogue of the build ("pt_BR"); an empty name
/// leaves them as the sources have them. Ends the program where there is no such catalogue.
void speak(const QString& language);

/// The text without the mark of its key (&).
[[nodiscard]] QString withoutKey(QString text);

/// What the catalogue has for a text of the sources, whatever its context; the text itself where it
/// has nothing. Without the mark of its key.
[[nodiscard]] QString spoken(const QString& text);

} // namespace quillon::test
