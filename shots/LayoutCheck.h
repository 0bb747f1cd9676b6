#pragma once

#include <QStringList>

class QWidget;

namespace quillon::test {

/// The faults of a window that shows, a sentence for each: visible or spoken texts that are not
/// translated, texts that are cut off, and widgets that overlap or stick out. Works only in the
/// pseudo-language. `names` are texts from outside, which have no translation.
[[nodiscard]] QStringList textFaults(QWidget& window, const QStringList& names);

} // namespace quillon::test
