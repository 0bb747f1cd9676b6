#pragma once

#include "state/SendItem.h"

#include <vector>

class QMimeData;

namespace quillon {

/// What is sent of something that is dropped: its files on this computer, else its picture where
/// that is a PNG, else its text. Empty where it holds none of these.
[[nodiscard]] std::vector<SendItem> droppedItems(const QMimeData& data);

/// Whether it may hold any of these, as far as can be told before it is dropped.
[[nodiscard]] bool canBeDropped(const QMimeData& data);

} // namespace quillon
