#include "platform/linux/files/PosixFileTree.h"

#include "platform/linux/files/Place.h"
#include "platform/linux/files/TreeCopy.h"

#include <QtConcurrentRun>

#include <algorithm>
#include <system_error>

#include <sys/stat.h>
#include <sys/xattr.h>

namespace quillon {

namespace {

using std::filesystem::path;

/// With one of these attributes, not even root can change an item.
constexpr auto fixed = STATX_ATTR_IMMUTABLE | STATX_ATTR_APPEND;

/// The status of the item at the place itself; none if it cannot be found out.
std::optional<struct statx> details(Place place) {
    struct statx status {};
    const int flags = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT;
    if (::statx(place.folder, place.name, flags, STATX_BASIC_STATS, &status) != 0)
        return std::nullopt;
    return status;
}

bool mayChange(Place folder) {
    return ::faccessat(folder.folder, folder.name, W_OK | X_OK, AT_EACCESS) == 0;
}

/// Whether the folder's attributes and sticky bit let this user remove the item.
bool lets(const struct statx& folder, const struct statx& item) {
    if ((folder.stx_attributes & fixed) != 0) return false;
    if ((folder.stx_mode & S_ISVTX) == 0) return true;
    const uid_t user = ::geteuid();
    return user == 0 || user == folder.stx_uid || user == item.stx_uid;
}

/// Whether everything in the folder can be removed, provided that the folder itself can.
bool canBeEmptied(Place place, const struct statx& status);

bool canBeRemoved(Place place, const struct statx& folder) {
    const auto status = details(place);
    if (!status || !lets(folder, *status)) return false;
    if ((status->stx_attributes & (fixed | STATX_ATTR_MOUNT_ROOT)) != 0) return false;
    return !S_ISDIR(status->stx_mode) || canBeEmptied(place, *status);
}

bool canBeEmptied(Place place, const struct statx& status) {
    const Descriptor folder{openItself(place, O_RDONLY | O_DIRECTORY)};
    const Listing all = folder.isOpen() ? listing(folder.number()) : Listing{};
    if (!all.complete) return false;
    if (all.names.empty()) return true;
    return mayChange({folder.number(), "."}) &&
           std::ranges::all_of(all.names, [&](const std::string& name) {
               return canBeRemoved({folder.number(), name.c_str()}, status);
           });
}

bool removeTree(const path& item) {
    std::error_code error;
    std::filesystem::remove_all(item, error);
    return std::filesystem::symlink_status(item, error).type() ==
           std::filesystem::file_type::not_found;
}

void removeAttributeFrom(Place place, const char* name) {
    const Descriptor item{openItself(place, O_PATH)};
    struct stat status {};
    if (!item.isOpen() || ::fstat(item.number(), &status) != 0) return;
    // This name leads to the very item that is open, even to a link, and wherever it was moved
    // meanwhile.
    const std::string itself = "/proc/self/fd/" + std::to_string(item.number());
    ::removexattr(itself.c_str(), name);
    if (!S_ISDIR(status.st_mode)) return;
    for (const std::string& entry : listing(item.number()).names)
        removeAttributeFrom({item.number(), entry.c_str()}, name);
}

} // namespace

path PosixFileTree::resolved(const path& path) const {
    std::error_code error;
    auto result = std::filesystem::weakly_canonical(path, error);
    return error ? path : result;
}

bool PosixFileTree::exists(const path& path) const {
    std::error_code error;
    return std::filesystem::exists(std::filesystem::symlink_status(path, error));
}

bool PosixFileTree::isWritable(const path& folder) const {
    std::error_code error;
    return std::filesystem::is_directory(folder, error) && mayChange({AT_FDCWD, folder.c_str()});
}

bool PosixFileTree::isDeletable(const path& path) const {
    const Place item{AT_FDCWD, path.c_str()};
    const auto status = details(item);
    const auto folder = path.parent_path();
    const Descriptor open{::open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)};
    const auto folderStatus = details({open.number(), "."});
    if (!status || !open.isOpen() || !folderStatus || !isWritable(folder)) return false;
    // Moving a folder into another changes its ".." entry, so the folder itself must be writable.
    if (S_ISDIR(status->stx_mode) && !mayChange(item)) return false;
    return canBeRemoved(item, *folderStatus);
}

QFuture<bool> PosixFileTree::move(path from, path to) {
    return QtConcurrent::run([from, to] { return moveTree(from, to); });
}

QFuture<bool> PosixFileTree::copy(path from, path to) {
    return QtConcurrent::run([from, to] { return copyTree(from, to); });
}

QFuture<bool> PosixFileTree::remove(path path) {
    return QtConcurrent::run([path] { return removeTree(path); });
}

QFuture<void> PosixFileTree::removeAttribute(path root, std::string name) {
    return QtConcurrent::run([root, name] {
        removeAttributeFrom({AT_FDCWD, root.c_str()}, name.c_str());
    });
}

} // namespace quillon
