#include "platform/linux/files/FolderLock.h"

#include "base/Translate.h"

#include <cerrno>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>

namespace quillon {

namespace {

constexpr std::chrono::milliseconds retryInterval{20};

} // namespace

std::string FolderLock::heldMessage() {
    return translate("FolderLock",
                     "Another Quillon is at work. Quit it, or wait until it is done.");
}

std::optional<FolderLock> FolderLock::take(const std::filesystem::path& folder,
                                           std::chrono::milliseconds patience) {
    Descriptor file{::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    // flock has no time-out, so it is asked again and again.
    const auto end = std::chrono::steady_clock::now() + patience;
    while (::flock(file.number(), LOCK_EX | LOCK_NB) != 0) {
        if (errno == EINTR) continue;
        if (errno != EWOULDBLOCK) break;
        if (std::chrono::steady_clock::now() >= end) return std::nullopt;
        std::this_thread::sleep_for(retryInterval);
    }
    return FolderLock{std::move(file)};
}

} // namespace quillon
