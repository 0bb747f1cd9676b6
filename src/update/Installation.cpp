#include "update/Installation.h"

#include "platform/linux/desktop/LinuxBundle.h"
#include "platform/linux/files/Descriptor.h"
#include "update/Errors.h"
#include "update/ProgramOutput.h"
#include "update/Version.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/statvfs.h>

#include <cstdio>
#include <system_error>
#include <utility>

namespace quillon {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view translocationPart = "/AppTranslocation/";

/// Exchanges two folders in one step. Returns 0 or an errno.
int exchange(const fs::path& left, const fs::path& right) {
    const int result =
        ::renameat2(AT_FDCWD, left.c_str(), AT_FDCWD, right.c_str(), RENAME_EXCHANGE);
    return result == 0 ? 0 : errno;
}

int tryExchange(const fs::path& folder) {
    const fs::path left = folder / "left";
    const fs::path right = folder / "right";
    int error = 0;
    if (::mkdir(left.c_str(), ownersFolder) != 0 || ::mkdir(right.c_str(), ownersFolder) != 0)
        error = errno;
    if (error == 0) error = exchange(left, right);
    ::rmdir(left.c_str());
    ::rmdir(right.c_str());
    return error;
}

/// Writes a file or folder through to the disk; false if that fails.
bool flush(const fs::path& path, int flags) {
    const Descriptor file{::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | flags)};
    return file.isOpen() && ::fsync(file.number()) == 0;
}

/// Locks the application folder that is there now, so that only one process replaces it. The lock
/// lasts as long as the result.
std::variant<Descriptor, UpdateError> lockInstallation(const fs::path& bundle) {
    constexpr int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    Descriptor file{::open(bundle.c_str(), flags)};
    if (!file.isOpen()) return fileError(errno);
    if (::flock(file.number(), LOCK_EX | LOCK_NB) != 0)
        return errno == EWOULDBLOCK ? updateError(updateInstalling) : fileError(errno);
    // Another process has replaced it meanwhile.
    if (!isStillAt(bundle, file.number())) return updateError(updateInstalling);
    return file;
}

/// The application folder in `folder`; empty if there is none, or if anything lies beside it.
fs::path onlyApplication(const fs::path& folder) {
    std::error_code error;
    fs::path only;
    for (fs::directory_iterator each{folder, error}, end; !error && each != end;
         each.increment(error)) {
        if (!only.empty()) return {};
        only = each->path();
    }
    const bool isFolder = fs::symlink_status(only, error).type() == fs::file_type::directory;
    return isFolder && only.extension() == ".app" ? only : fs::path{};
}

bool tellsVersion(const Bundle& bundle, const FeedItem& item, std::chrono::milliseconds timeout) {
    std::error_code error;
    const fs::file_status status = fs::symlink_status(bundle.executable, error);
    if (error || status.type() != fs::file_type::regular) return false;
    if ((status.permissions() & fs::perms::owner_exec) == fs::perms::none) return false;
    return programOutput(bundle.executable, "--version", timeout) ==
           "quillon " + item.shortVersion + "\n";
}

/// The code of the error for a bundle that must not be installed; 0 if it may be.
int objectionTo(const Bundle& bundle, const Bundle& running, const FeedItem& item,
                std::chrono::milliseconds timeout) {
    if (bundle.identifier().empty() || bundle.identifier() != running.identifier())
        return updateOtherApplication;
    if (bundle.text("CFBundleVersion") != item.version ||
        bundle.text("CFBundleShortVersionString") != item.shortVersion)
        return updateOtherVersion;
    if (std::is_lteq(compareVersions(item.version, comparedVersion(running))))
        return updateNotNewer;
    return tellsVersion(bundle, item, timeout) ? 0 : updateDoesNotRun;
}

} // namespace

std::string comparedVersion(const Bundle& bundle) {
    return bundle.text("CFBundleVersion").value_or(bundle.shortVersion());
}

std::optional<UpdateError> objectionToUpdating(const fs::path& bundle) {
    if (bundle.native().find(translocationPart) != std::string::npos)
        return updateError(updateWhileTranslocated);
    struct statvfs disk {};
    if (::statvfs(bundle.c_str(), &disk) == 0 && (disk.f_flag & ST_RDONLY) != 0)
        return updateError(updateOnReadOnlyVolume);
    // Moving a folder changes its ".." entry, so the folder itself must be writable.
    for (const fs::path& folder : {bundle.parent_path(), bundle}) {
        if (::access(folder.c_str(), W_OK | X_OK) != 0) return fileError(errno);
    }
    return std::nullopt;
}

std::variant<std::shared_ptr<PrivateFolder>, UpdateError> makeStaging(const fs::path& bundle) {
    if (auto error = objectionToUpdating(bundle)) return *std::move(error);
    auto folder = std::make_shared<PrivateFolder>(bundle.parent_path(), stagingPrefix);
    if (!folder->isOpen()) return fileError(folder->error());
    if (const int error = tryExchange(folder->path()); error != 0) return fileError(error);
    return folder;
}

std::variant<fs::path, UpdateError> checkStaged(const fs::path& folder, const Bundle& running,
                                                const FeedItem& item,
                                                std::chrono::milliseconds timeout) {
    fs::path staged = onlyApplication(folder);
    if (staged.empty()) return updateError(updateNoApplication);
    const int code = objectionTo(bundleAt(staged), running, item, timeout);
    if (code != 0) return updateError(code);
    return staged;
}

bool flushTree(const fs::path& folder) {
    std::error_code error;
    for (fs::recursive_directory_iterator each{folder, error}, end; !error && each != end;
         each.increment(error)) {
        const fs::file_type type = each->symlink_status(error).type();
        const bool isFile = type == fs::file_type::regular;
        const bool isFolder = type == fs::file_type::directory;
        if ((isFile || isFolder) && !flush(each->path(), isFolder ? O_DIRECTORY : 0)) return false;
    }
    return !error && flush(folder, O_DIRECTORY);
}

std::optional<UpdateError> install(const PreparedUpdate& update) {
    const auto lock = lockInstallation(update.bundle);
    if (const auto* error = std::get_if<UpdateError>(&lock)) return *error;
    const Bundle installed = bundleAt(update.bundle);
    if (std::is_lteq(compareVersions(update.item.version, comparedVersion(installed))))
        return updateError(updateInstalling);
    if (const int error = exchange(update.staged, update.bundle); error != 0)
        return fileError(error);
    update.folder->keep();
    // Writes the exchange to the disk. If this fails, the exchange is done all the same.
    flush(update.bundle.parent_path(), O_DIRECTORY);
    flush(update.folder->path(), O_DIRECTORY);
    return std::nullopt;
}

void removeLeftovers(const Bundle& bundle, const Folders& folders) {
    if (bundle.isApplication()) removeAbandoned(bundle.url.parent_path(), stagingPrefix);
    removeAbandoned(folders.cache / bundle.folderName(), downloadPrefix);
}

} // namespace quillon
