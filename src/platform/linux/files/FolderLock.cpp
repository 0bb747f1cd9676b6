#include "platform/linux/files/FolderLock.h"

#include "base/Translate.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace quillon {

std::string FolderLock::heldMessage() {
    return translate("FolderLock",
                     "Another Quillon is at work. Quit it, or wait until it is done.");
}

std::optional<FolderLock> FolderLock::take(const std::filesystem::path& folder) {
    FolderLock lock{open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    while (flock(lock.descriptor_, LOCK_EX | LOCK_NB) != 0) {
        if (errno == EWOULDBLOCK) return std::nullopt;
        if (errno != EINTR) break;
    }
    return lock;
}

FolderLock::FolderLock(FolderLock&& other) noexcept
    : descriptor_{std::exchange(other.descriptor_, -1)} {}

FolderLock& FolderLock::operator=(FolderLock&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
}

FolderLock::~FolderLock() {
    if (descriptor_ >= 0) close(descriptor_);
}

} // namespace quillon
