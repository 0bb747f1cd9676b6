#include "update/PrivateFolder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>
#include <vector>

namespace quillon {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view randomPart = "XXXXXX";

/// Another process that tidies up may remove a folder before it is locked; not time after time.
constexpr int attempts = 10;

/// A descriptor of the folder itself, never of what a link leads to, with its lock; -1 when it is
/// gone, no folder of this user's, or in another process's hands.
int lockFolder(const fs::path& folder) {
    const int file = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (file < 0) return -1;
    struct stat opened {};
    struct stat named {};
    const bool ours = ::fstat(file, &opened) == 0 && opened.st_uid == ::geteuid() &&
                      ::flock(file, LOCK_EX | LOCK_NB) == 0 &&
                      ::lstat(folder.c_str(), &named) == 0 && named.st_ino == opened.st_ino &&
                      named.st_dev == opened.st_dev;
    if (ours) return file;
    ::close(file);
    return -1;
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
    if (lock_ < 0) ::rmdir(name.c_str());
    return isOpen();
}

PrivateFolder::~PrivateFolder() {
    if (!isOpen()) return;
    if (!keep_) removeTree(path_);
    ::close(lock_);
}

void removeAbandoned(const fs::path& parent, std::string_view prefix) {
    std::error_code error;
    std::vector<fs::path> found;
    for (fs::directory_iterator each{parent, error}, end; !error && each != end;
         each.increment(error)) {
        if (isPrivateName(each->path().filename().native(), prefix)) found.push_back(each->path());
    }
    for (const fs::path& folder : found) {
        const int lock = lockFolder(folder);
        if (lock < 0) continue;
        removeTree(folder);
        ::close(lock);
    }
}

void removeTree(const fs::path& folder) {
    std::error_code ignored;
    if (fs::is_symlink(fs::symlink_status(folder, ignored))) return;
    // A folder that may not be written to cannot be emptied. Links are never gone through.
    std::error_code error;
    const auto open = [&](const fs::path& each) {
        fs::permissions(each, fs::perms::owner_all, fs::perm_options::add, ignored);
    };
    open(folder);
    for (fs::recursive_directory_iterator each{folder, error}, end; !error && each != end;
         each.increment(error)) {
        if (each->symlink_status(ignored).type() == fs::file_type::directory) open(each->path());
    }
    fs::remove_all(folder, ignored);
}

} // namespace quillon
