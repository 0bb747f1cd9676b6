#pragma once

#include <QStringList>

class QWidget;

namespace quillon::test {

/// The faults of a window that shows, a sentence for each, in any language: texts that are cut off,
/// widgets that overlap or stick out, and keys (Alt with a letter) that two controls have. `names`
/// are texts from outside, which may be of any length.
[[nodiscard]] QStringList layoutFaults(QWidget& window, const QStringList& names);

/// The visible or spoken texts of a window that are not translated, a sentence for each. Works only
/// in the pseudo-language. `names` are texts from outside, which have no translation.
[[nodiscard]] QStringList languageFaults(QWidget& window, const QStringList& names);

} // namespace quillon::test
