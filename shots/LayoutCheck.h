#pragma once

#include <QStringList>

class QWidget;

namespace quillon::test {

/// What is wrong with the texts of a window that shows, a sentence each: texts that no catalogue
/// can reach, seen or spoken; texts that are cut off; widgets that lie over each other or stick
/// out. To be asked in the pseudo-language. `names` are texts from outside, which have no
/// translation.
[[nodiscard]] QStringList textFaults(QWidget& window, const QStringList& names);

} // namespace quillon::test
