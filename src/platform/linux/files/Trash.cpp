#include "platform/linux/files/Trash.h"

#include "platform/linux/files/Descriptor.h"
#include "platform/linux/files/TreeCopy.h"

#include <QByteArray>
#include <QDateTime>

#include <optional>
#include <string>

#include <fcntl.h>
#include <linux/limits.h>

namespace quillon {

namespace {

using std::filesystem::path;

/// The highest number that is tried to make a name unique.
constexpr int maximumNames = 10'000;
/// The bytes that the number and ".trashinfo" add to an item's name.
constexpr std::size_t nameReserve = 24;

/// The status of the item at the path itself; none if nothing is there.
std::optional<struct stat> statusOf(const path& path) {
    struct stat result {};
    if (::lstat(path.c_str(), &result) != 0) return std::nullopt;
    return result;
}

/// Makes the folder if it is missing. Whether it is there now and is this user's own.
bool haveOwnFolder(const path& folder) {
    if (::mkdir(folder.c_str(), ownersFolder) != 0 && errno != EEXIST) return false;
    const auto found = statusOf(folder);
    return found && S_ISDIR(found->st_mode) && found->st_uid == ::geteuid();
}

/// The highest folder above the path on its file system.
path topFolder(const path& item, dev_t device) {
    path top = item;
    for (path above = top.parent_path(); above != top; above = above.parent_path()) {
        const auto found = statusOf(above);
        if (!found || found->st_dev != device) break;
        top = above;
    }
    return top;
}

/// The trash at a file system's top folder: the user's part of the administrator's ".Trash", which
/// counts only if it is a real folder with the sticky bit, else the user's own folder beside it.
std::optional<path> trashAtTop(const path& top) {
    const std::string user = std::to_string(::getuid());
    const path shared = top / ".Trash";
    const auto found = statusOf(shared);
    if (found && S_ISDIR(found->st_mode) && (found->st_mode & S_ISVTX) != 0 &&
        haveOwnFolder(shared / user))
        return shared / user;
    const path own = top / (".Trash-" + user);
    return haveOwnFolder(own) ? std::optional{own} : std::nullopt;
}

std::optional<path> homeTrash(const path& data) {
    std::error_code ignored;
    std::filesystem::create_directories(data, ignored);
    const path trash = data / "Trash";
    // This accepts a link, by which the user may have put the trash elsewhere.
    if (std::filesystem::is_directory(trash, ignored)) return trash;
    return haveOwnFolder(trash) ? std::optional{trash} : std::nullopt;
}

/// The text of an item's .trashinfo file: where it was, percent-encoded byte by byte, and when it
/// was deleted, in local time.
std::string trashInfo(const path& origin) {
    const QByteArray bytes = QByteArray::fromStdString(origin.native());
    const QString now =
        QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss"));
    return "[Trash Info]\nPath=" + bytes.toPercentEncoding("/").toStdString() +
           "\nDeletionDate=" + now.toStdString() + "\n";
}

/// Writes the note if its name is still free, which reserves the name for the item. False with
/// errno EEXIST if the name is taken.
bool writeNote(const path& note, const std::string& text) {
    Descriptor file{
        ::open(note.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, ownersFile)};
    if (!file.isOpen()) return false;
    const bool written = writeAll(file.number(), text);
    if (file.close() && written) return true;
    ::unlink(note.c_str());
    errno = EIO;
    return false;
}

/// "Quillon.app", then "Quillon.2.app"...; leaves room for ".trashinfo" within a file name's limit.
std::string numbered(const path& name, int number) {
    const std::string stem = name.stem().native().substr(0, NAME_MAX - nameReserve);
    const std::string extension =
        name.native().size() > NAME_MAX - nameReserve ? "" : name.extension().native();
    if (number == 1) return stem + extension;
    return stem + "." + std::to_string(number) + extension;
}

using Carry = bool (*)(const path&, const path&);

/// Puts the item into the trash by `carry`. `origin` is the path that the note names. Returns 0 or
/// an errno.
int putInto(const path& trash, const path& item, const path& origin, Carry carry) {
    const path files = trash / "files";
    const path info = trash / "info";
    if (!haveOwnFolder(files) || !haveOwnFolder(info)) return EACCES;
    const std::string text = trashInfo(origin);
    for (int number = 1; number <= maximumNames; ++number) {
        const std::string name = numbered(item.filename(), number);
        const path note = info / (name + ".trashinfo");
        const path target = files / name;
        // Somebody may have left a file here without a note; it keeps its name.
        if (statusOf(target)) continue;
        if (!writeNote(note, text)) {
            if (errno == EEXIST) continue;
            return errno;
        }
        if (carry(item, target)) return 0;
        const int error = errno;
        ::unlink(note.c_str());
        // Another process may have taken the name meanwhile; then the next one is tried.
        if (!statusOf(target)) return error;
    }
    return EEXIST;
}

} // namespace

bool moveToTrash(const path& item, const path& data) {
    std::error_code problem;
    // Only the folder is resolved, so that a link itself goes and not its target.
    const path folder = std::filesystem::canonical(item.parent_path(), problem);
    if (problem || item.filename().empty()) return false;
    const path origin = folder / item.filename();
    const auto found = statusOf(origin);
    if (!found) return false;

    const auto home = homeTrash(data);
    const int error = home ? putInto(*home, origin, origin, renameToNew) : EXDEV;
    if (error != EXDEV) return error == 0;
    const path top = topFolder(folder, found->st_dev);
    const auto elsewhere = trashAtTop(top);
    if (elsewhere && putInto(*elsewhere, origin, origin.lexically_relative(top), renameToNew) == 0)
        return true;
    return home && putInto(*home, origin, origin, moveTree) == 0;
}

} // namespace quillon
