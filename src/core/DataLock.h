#pragma once

#include "platform/linux/files/FolderLock.h"

#include <QCoroTask>

#include <chrono>
#include <optional>

namespace quillon {

struct Platform;

/// A command holds the data for less time than this, unless it waits for the network.
inline constexpr std::chrono::milliseconds dataLockPatience{5000};

/// Creates the data folder and takes its lock. While another process holds the lock, this tries
/// again, and the event loop turns meanwhile. Gives none when `patience` is over.
[[nodiscard]] QCoro::Task<std::optional<FolderLock>>
takeDataLock(Platform& platform, std::chrono::milliseconds patience);

} // namespace quillon
