#include "update/Errors.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace quillon {

namespace {

struct Sentence {
    int number;
    std::string_view text;
};

constexpr std::array sentences{
    Sentence{updateOnReadOnlyVolume,
             "Quillon cannot update itself where it lies now: that disk cannot be written to."},
    Sentence{updateWhileTranslocated,
             "Quillon cannot update itself from the temporary place it was started from."},
    Sentence{updateCopyFailed, "The update could not be copied to where Quillon lies."},
    Sentence{updateInstalling, "Another Quillon is installing an update, or has just done so."},
    Sentence{updateNotPermitted, "You are not allowed to change the folder that Quillon lies in."},
    Sentence{updateCancelled, "The update was cancelled."},
    Sentence{updateFeedNotAllowed,
             "The address to look for updates at is not a secure one (https)."},
    Sentence{updateFeedUnreachable,
             "The list of updates could not be fetched. Check your connection and try again."},
    Sentence{updateFeedBroken, "The list of updates is broken."},
    Sentence{
        updateKeyMissing,
        "This copy of Quillon holds no key to check updates with, so it cannot update itself."},
    Sentence{updateNotAllowed, "The update's address is not a secure one (https)."},
    Sentence{updateDownloadFailed,
             "The update could not be downloaded. Check your connection and try again."},
    Sentence{updateLengthWrong, "The downloaded update does not have the size it should have."},
    Sentence{updateSignatureWrong,
             "The downloaded update is not signed by Quillon's makers, so it was thrown away."},
    Sentence{updateDownloadNotStored,
             "The downloaded update could not be stored in your cache folder."},
    Sentence{updateArchiveDamaged,
             "The update's archive is damaged, encrypted or of another kind."},
    Sentence{updateArchiveAbsolutePath,
             "The update's archive holds a path outside of its folder, so it was thrown away."},
    Sentence{updateArchiveParentPath,
             "The update's archive holds a path with \"..\", so it was thrown away."},
    Sentence{updateArchiveLink,
             "The update's archive holds a link that leaves its folder, so it was thrown away."},
    Sentence{updateArchiveSpecialFile,
             "The update's archive holds a device, pipe or socket, so it was thrown away."},
    Sentence{updateArchivePrivileges,
             "The update's archive holds a program with another user's rights, so it was thrown "
             "away."},
    Sentence{updateArchiveTooLarge,
             "The update is too large when unpacked, so it was thrown away."},
    Sentence{updateNoApplication, "The update's archive does not hold exactly one application."},
    Sentence{updateOtherApplication,
             "The update's archive holds another application than Quillon."},
    Sentence{updateOtherVersion, "The update's archive holds another version than was announced."},
    Sentence{updateNotNewer, "The update is not newer than this version of Quillon."},
    Sentence{updateDoesNotRun, "The new version does not start on this computer."},
};

/// System errors that lie in the place itself. Their sentences are those of the code, but for the
/// ones that have more to tell.
struct SystemError {
    int number;
    int code;
    std::string_view text;
};

constexpr std::array systemErrors{
    SystemError{EROFS, updateOnReadOnlyVolume, {}},
    SystemError{EACCES, updateNotPermitted, {}},
    SystemError{EPERM, updateNotPermitted, {}},
    SystemError{ENOSPC, updateCopyFailed, "There is not enough room on the disk for the update."},
    SystemError{EDQUOT, updateCopyFailed, "There is not enough room on the disk for the update."},
    SystemError{EINVAL, updateCopyFailed,
                "The disk that Quillon lies on cannot exchange two folders in one step."},
    SystemError{ENOSYS, updateCopyFailed,
                "The disk that Quillon lies on cannot exchange two folders in one step."},
};

template <typename Table>
auto entry(const Table& table, int number) {
    return std::find_if(table.begin(), table.end(),
                        [=](const auto& each) { return each.number == number; });
}

} // namespace

UpdateError updateError(int code) {
    const auto found = entry(sentences, code);
    UpdateError error;
    error.domain = SUSparkleErrorDomain;
    error.code = code;
    if (found != sentences.end()) error.description = found->text;
    return error;
}

UpdateError fileError(int systemError) {
    const auto found = entry(systemErrors, systemError);
    if (found == systemErrors.end()) return updateError(updateCopyFailed);
    UpdateError error = updateError(found->code);
    if (!found->text.empty()) error.description = found->text;
    return error;
}

} // namespace quillon
