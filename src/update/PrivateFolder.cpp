#include "update/PrivateFolder.h"

#include "platform/linux/files/TreeCopy.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cstdlib>
#include <string>
#include <system_error>
#include <vector>

namespace quillon {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view randomPart = "XXXXXX";

/// Another process's removeAbandoned may remove a folder before it is locked, but not again and
/// again.
constexpr int attempts = 10;

/// Opens and locks the folder itself, never the target of a link. The result is not open if the
/// folder is gone, belongs to another user, or is locked by another process.
Descriptor lockFolder(const fs::path& folder) {
    Descriptor file{::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC)};
    struct stat status {};
    const bool ours = ::fstat(file.number(), &status) == 0 && status.st_uid == ::geteuid() &&
                      ::flock(file.number(), LOCK_EX | LOCK_NB) == 0 &&
                      isStillAt(folder, file.number());
    if (!ours) file.close();
    return file;
}

bool isPrivateName(const std::string& name, std::string_view prefix) {
    return name.size() == prefix.size() + randomPart.size() && name.starts_with(prefix);
}

} // namespace

PrivateFolder::PrivateFolder(const fs::path& parent, std::string_view prefix) {
    for (int attempt = 0; attempt < attempts && !create(parent, prefix); ++attempt) {
        if (error_ != 0) return;
    }
}

bool PrivateFolder::create(const fs::path& parent, std::string_view prefix) {
    std::string name = (parent / prefix).native() + std::string{randomPart};
    if (!::mkdtemp(name.data())) {
        error_ = errno;
        return false;
    }
    path_ = name;
    lock_ = lockFolder(path_);
    if (!lock_.isOpen()) ::rmdir(name.c_str());
    return isOpen();
}

PrivateFolder::~PrivateFolder() {
    if (isOpen() && !keep_) discardTree(path_);
}

void removeAbandoned(const fs::path& parent, std::string_view prefix) {
    std::error_code error;
    std::vector<fs::path> found;
    for (fs::directory_iterator each{parent, error}, end; !error && each != end;
         each.increment(error)) {
        if (isPrivateName(each->path().filename().native(), prefix)) found.push_back(each->path());
    }
    for (const fs::path& folder : found) {
        const Descriptor lock = lockFolder(folder);
        if (lock.isOpen()) discardTree(folder);
    }
}

} // namespace quillon
