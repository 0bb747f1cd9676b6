#include "platform/linux/files/TreeCopy.h"

#include "platform/linux/files/Place.h"

#include <array>
#include <climits>
#include <cstdio>
#include <map>
#include <optional>
#include <random>

#include <linux/limits.h>
#include <sys/sendfile.h>
#include <sys/xattr.h>

namespace quillon {

namespace {

using std::filesystem::path;

constexpr mode_t permissionBits = 07777;

/// The size of one sendfile() call, in bytes.
constexpr size_t portion = 1 << 20;

/// Identifies a file independently of its names.
using FileId = std::pair<dev_t, ino_t>;

FileId identity(const struct stat& status) {
    return {status.st_dev, status.st_ino};
}

/// The mode for the copy, which belongs to this process's user.
mode_t copiedMode(const struct stat& status) {
    mode_t mode = status.st_mode & permissionBits;
    if (status.st_uid != ::geteuid()) mode &= ~static_cast<mode_t>(S_ISUID);
    if (status.st_gid != ::getegid()) mode &= ~static_cast<mode_t>(S_ISGID);
    return mode;
}

std::array<timespec, 2> times(const struct stat& status) {
    return {status.st_atim, status.st_mtim};
}

bool copyContent(int from, int to) {
    for (;;) {
        const ssize_t count = uninterrupted([&] { return ::sendfile(to, from, nullptr, portion); });
        if (count <= 0) return count == 0;
    }
}

/// Copies one attribute. Also true if the target's file system has no attributes or this user may
/// not set it.
bool copyAttribute(int from, int to, const char* name) {
    std::string value(static_cast<size_t>(XATTR_SIZE_MAX), '\0');
    const ssize_t size = ::fgetxattr(from, name, value.data(), value.size());
    if (size < 0) return true;
    return ::fsetxattr(to, name, value.data(), static_cast<size_t>(size), 0) == 0 ||
           errno == ENOTSUP || errno == EPERM || errno == EACCES;
}

bool copyAttributes(int from, int to) {
    std::string names(static_cast<size_t>(XATTR_LIST_MAX), '\0');
    const ssize_t size = ::flistxattr(from, names.data(), names.size());
    if (size <= 0) return true;
    names.resize(static_cast<size_t>(size));
    for (size_t start = 0; start < names.size(); start = names.find('\0', start) + 1) {
        if (!copyAttribute(from, to, names.c_str() + start)) return false;
    }
    return true;
}

/// Copies mode, attributes and times of a file or folder whose content is complete, in an order in
/// which none undoes another. Then waits until all of it is on disk.
bool finish(int from, int to, const struct stat& status) {
    return ::fchmod(to, copiedMode(status)) == 0 && copyAttributes(from, to) &&
           ::futimens(to, times(status).data()) == 0 && ::fsync(to) == 0;
}

/// One copy on its way.
class TreeCopy {
public:
    /// `root` is where the copy grows.
    explicit TreeCopy(Place root) : root_{root} {}

    [[nodiscard]] bool copy(Place from, const path& name);

private:
    bool copyFile(Place from, const path& name);
    bool copyFolder(Place from, const path& name);
    bool copyLink(Place from, const path& name, const struct stat& status) const;
    bool copyPipe(const path& name, const struct stat& status) const;
    bool stamp(const path& name, const struct stat& status) const;

    Place root_;
    std::optional<FileId> rootId_;
    /// The first copy of each file that has several names.
    std::map<FileId, path> linked_;
};

/// `name` is the copy's path below the folder of the root.
bool TreeCopy::copy(Place from, const path& name) {
    struct stat status {};
    if (::fstatat(from.folder, from.name, &status, AT_SYMLINK_NOFOLLOW) != 0) return false;
    switch (status.st_mode & S_IFMT) {
    case S_IFREG:
        return copyFile(from, name);
    case S_IFDIR:
        return copyFolder(from, name);
    case S_IFLNK:
        return copyLink(from, name, status);
    case S_IFIFO:
        return copyPipe(name, status);
    default:
        return false;
    }
}

bool TreeCopy::copyFile(Place from, const path& name) {
    const Descriptor source{openItself(from, O_RDONLY)};
    struct stat status {};
    // The path may lead to something else by now.
    if (!source.isOpen() || ::fstat(source.number(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    if (status.st_nlink > 1) {
        const auto [first, isNew] = linked_.try_emplace(identity(status), name);
        const char* other = first->second.c_str();
        if (!isNew) return ::linkat(root_.folder, other, root_.folder, name.c_str(), 0) == 0;
    }
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    Descriptor target{::openat(root_.folder, name.c_str(), flags, ownersFile)};
    return target.isOpen() && copyContent(source.number(), target.number()) &&
           finish(source.number(), target.number(), status) && target.close();
}

bool TreeCopy::copyFolder(Place from, const path& name) {
    const Descriptor source{openItself(from, O_RDONLY | O_DIRECTORY)};
    struct stat status {};
    if (!source.isOpen() || ::fstat(source.number(), &status) != 0) return false;
    // Copying a folder into itself would never end.
    if (identity(status) == rootId_) return false;

    // Until it is complete, the copy is accessible to its owner alone.
    if (::mkdirat(root_.folder, name.c_str(), ownersFolder) != 0) return false;
    const Descriptor target{openItself({root_.folder, name.c_str()}, O_RDONLY | O_DIRECTORY)};
    struct stat copied {};
    if (!target.isOpen() || ::fstat(target.number(), &copied) != 0) return false;
    if (!rootId_) rootId_ = identity(copied);

    const Listing all = listing(source.number());
    if (!all.complete) return false;
    for (const std::string& entry : all.names) {
        if (!copy({source.number(), entry.c_str()}, name / entry)) return false;
    }
    return finish(source.number(), target.number(), status);
}

bool TreeCopy::copyLink(Place from, const path& name, const struct stat& status) const {
    std::array<char, PATH_MAX> target{};
    const ssize_t size = ::readlinkat(from.folder, from.name, target.data(), target.size() - 1);
    return size > 0 && ::symlinkat(target.data(), root_.folder, name.c_str()) == 0 &&
           stamp(name, status);
}

bool TreeCopy::copyPipe(const path& name, const struct stat& status) const {
    return ::mkfifoat(root_.folder, name.c_str(), ownersFile) == 0 &&
           ::fchmodat(root_.folder, name.c_str(), copiedMode(status), 0) == 0 &&
           stamp(name, status);
}

bool TreeCopy::stamp(const path& name, const struct stat& status) const {
    return ::utimensat(root_.folder, name.c_str(), times(status).data(), AT_SYMLINK_NOFOLLOW) == 0;
}

/// A name that nothing in a folder has.
std::string temporaryName() {
    std::random_device random;
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), ".quillon-%08x%08x", random(), random());
    return text.data();
}

} // namespace

bool renameToNew(const path& from, const path& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    // Some network file systems do not support RENAME_NOREPLACE.
    if (errno != EINVAL) return false;
    struct stat status {};
    if (::lstat(to.c_str(), &status) == 0) {
        errno = EEXIST;
        return false;
    }
    return ::rename(from.c_str(), to.c_str()) == 0;
}

bool copyTree(const path& from, const path& to) {
    const path parent = to.parent_path();
    const Descriptor folder{::open(parent.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    struct stat status {};
    if (!folder.isOpen() || ::lstat(to.c_str(), &status) == 0) return false;
    const std::string temporary = temporaryName();
    TreeCopy copy{{folder.number(), temporary.c_str()}};
    if (copy.copy({AT_FDCWD, from.c_str()}, temporary) && renameToNew(parent / temporary, to)) {
        ::fsync(folder.number());
        return true;
    }
    discardTree(parent / temporary);
    return false;
}

bool moveTree(const path& from, const path& to) {
    if (renameToNew(from, to)) return true;
    if (errno != EXDEV || !copyTree(from, to)) return false;
    std::error_code ignored;
    std::filesystem::remove_all(from, ignored);
    return true;
}

void discardTree(const path& tree) {
    namespace fs = std::filesystem;
    std::error_code ignored;
    const auto openFolder = [&](const path& each, const fs::file_status& status) {
        if (status.type() == fs::file_type::directory)
            fs::permissions(each, fs::perms::owner_all, fs::perm_options::add, ignored);
    };
    openFolder(tree, fs::symlink_status(tree, ignored));
    std::error_code error;
    for (fs::recursive_directory_iterator each{tree, error}, end; !error && each != end;
         each.increment(error))
        openFolder(each->path(), each->symlink_status(ignored));
    fs::remove_all(tree, ignored);
}

} // namespace quillon
