#include "core/DataLock.h"

#include "platform/FileSystem.h"
#include "platform/Platform.h"
#include "platform/Sleep.h"

namespace quillon {

namespace {

constexpr std::chrono::milliseconds retryInterval{20};

} // namespace

QCoro::Task<std::optional<FolderLock>> takeDataLock(Platform& platform,
                                                    std::chrono::milliseconds patience) {
    platform.files.createFolder(platform.dataFolder);
    for (std::chrono::milliseconds waited{0};; waited += retryInterval) {
        std::optional<FolderLock> lock = FolderLock::take(platform.dataFolder);
        if (lock || waited >= patience) co_return lock;
        co_await sleep(platform.clock, retryInterval);
    }
}

} // namespace quillon
