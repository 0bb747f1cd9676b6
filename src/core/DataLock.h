#pragma once

#include "platform/linux/files/FolderLock.h"

#include <QCoroTask>

#include <chrono>
#include <optional>

namespace quillon {

struct Platform;

/// Longer than a command holds the data, unless the network makes it wait.
inline constexpr std::chrono::milliseconds dataLockPatience{5000};

/// Makes the data folder and takes its lock. While another process holds that, tries again until
/// `patience` is over, and the event loop turns meanwhile; then gives none.
[[nodiscard]] QCoro::Task<std::optional<FolderLock>>
takeDataLock(Platform& platform, std::chrono::milliseconds patience);

} // namespace quillon
