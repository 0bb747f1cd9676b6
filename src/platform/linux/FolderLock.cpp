#include "platform/linux/FolderLock.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace quillon {

std::optional<FolderLock> FolderLock::take(const std::filesystem::path& folder, IfHeld ifHeld) {
    FolderLock lock{open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    const int operation = ifHeld == IfHeld::wait ? LOCK_EX : LOCK_EX | LOCK_NB;
    int result = 0;
    do {
        result = flock(lock.descriptor_, operation);
    } while (result != 0 && errno == EINTR);
    if (result != 0 && errno == EWOULDBLOCK) return std::nullopt;
    return lock;
}

FolderLock::FolderLock(FolderLock&& other) noexcept
    : descriptor_{std::exchange(other.descriptor_, -1)} {}

FolderLock::~FolderLock() {
    release();
}

void FolderLock::release() {
    if (descriptor_ >= 0) close(std::exchange(descriptor_, -1));
}

} // namespace quillon
