#include "platform/linux/files/FolderLock.h"

#include "base/Translate.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>

namespace quillon {

std::string FolderLock::heldMessage() {
    return translate("FolderLock",
                     "Another Quillon is at work. Quit it, or wait until it is done.");
}

std::optional<FolderLock> FolderLock::take(const std::filesystem::path& folder) {
    Descriptor file{::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    while (::flock(file.number(), LOCK_EX | LOCK_NB) != 0) {
        if (errno == EWOULDBLOCK) return std::nullopt;
        if (errno != EINTR) break;
    }
    return FolderLock{std::move(file)};
}

} // namespace quillon
