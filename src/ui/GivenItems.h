#pragma once

#include "state/SendItem.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace quillon {

/// What another program asks to be sent: files by absolute paths or by URIs of this computer, and a
/// text unless it is blank, after them. None when one of the files is neither, or nothing is left.
[[nodiscard]] std::optional<std::vector<SendItem>> givenItems(const QStringList& files,
                                                              const QString& text);

} // namespace quillon
