#include "update/Errors.h"

#include "base/Translate.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace quillon {

namespace {

constexpr const char* context = "UpdateError";

struct Sentence {
    int number;
    const char* text;
};

constexpr std::array sentences{
    Sentence{
        updateOnReadOnlyVolume,
        QT_TRANSLATE_NOOP(
            "UpdateError",
            "Quillon cannot update itself where it lies now: that disk cannot be written to.")},
    Sentence{updateWhileTranslocated,
             QT_TRANSLATE_NOOP(
                 "UpdateError",
                 "Quillon cannot update itself from the temporary place it was started from.")},
    Sentence{
        updateCopyFailed,
        QT_TRANSLATE_NOOP("UpdateError", "The update could not be copied to where Quillon lies.")},
    Sentence{updateInstalling,
             QT_TRANSLATE_NOOP("UpdateError",
                               "Another Quillon is installing an update, or has just done so.")},
    Sentence{updateNotPermitted,
             QT_TRANSLATE_NOOP("UpdateError",
                               "You are not allowed to change the folder that Quillon lies in.")},
    Sentence{updateCancelled, QT_TRANSLATE_NOOP("UpdateError", "The update was cancelled.")},
    Sentence{updateFeedNotAllowed,
             QT_TRANSLATE_NOOP("UpdateError",
                               "The address to look for updates at is not a secure one (https).")},
    Sentence{updateFeedUnreachable,
             QT_TRANSLATE_NOOP(
                 "UpdateError",
                 "The list of updates could not be fetched. Check your connection and try again.")},
    Sentence{updateFeedBroken, QT_TRANSLATE_NOOP("UpdateError", "The list of updates is broken.")},
    Sentence{updateKeyMissing,
             QT_TRANSLATE_NOOP("UpdateError", "This copy of Quillon holds no key to check updates "
                                              "with, so it cannot update itself.")},
    Sentence{updateNotAllowed,
             QT_TRANSLATE_NOOP("UpdateError", "The update's address is not a secure one (https).")},
    Sentence{updateDownloadFailed,
             QT_TRANSLATE_NOOP(
                 "UpdateError",
                 "The update could not be downloaded. Check your connection and try again.")},
    Sentence{updateLengthWrong,
             QT_TRANSLATE_NOOP("UpdateError",
                               "The downloaded update does not have the size it should have.")},
    Sentence{
        updateSignatureWrong,
        QT_TRANSLATE_NOOP(
            "UpdateError",
            "The downloaded update is not signed by Quillon's makers, so it was thrown away.")},
    Sentence{updateDownloadNotStored,
             QT_TRANSLATE_NOOP("UpdateError",
                               "The downloaded update could not be stored in your cache folder.")},
    Sentence{updateArchiveDamaged,
             QT_TRANSLATE_NOOP("UpdateError",
                               "The update's archive is damaged, encrypted or of another kind.")},
    Sentence{
        updateArchiveAbsolutePath,
        QT_TRANSLATE_NOOP(
            "UpdateError",
            "The update's archive holds a path outside of its folder, so it was thrown away.")},
    Sentence{
        updateArchiveParentPath,
        QT_TRANSLATE_NOOP("UpdateError",
                          "The update's archive holds a path with \"..\", so it was thrown away.")},
    Sentence{
        updateArchiveLink,
        QT_TRANSLATE_NOOP(
            "UpdateError",
            "The update's archive holds a link that leaves its folder, so it was thrown away.")},
    Sentence{updateArchiveSpecialFile,
             QT_TRANSLATE_NOOP(
                 "UpdateError",
                 "The update's archive holds a device, pipe or socket, so it was thrown away.")},
    Sentence{
        updateArchivePrivileges,
        QT_TRANSLATE_NOOP(
            "UpdateError",
            "The update's archive holds a program with another user's rights, so it was thrown "
            "away.")},
    Sentence{updateArchiveTooLarge,
             QT_TRANSLATE_NOOP("UpdateError",
                               "The update is too large when unpacked, so it was thrown away.")},
    Sentence{updateNoApplication,
             QT_TRANSLATE_NOOP("UpdateError",
                               "The update's archive does not hold exactly one application.")},
    Sentence{updateOtherApplication,
             QT_TRANSLATE_NOOP("UpdateError",
                               "The update's archive holds another application than Quillon.")},
    Sentence{updateOtherVersion,
             QT_TRANSLATE_NOOP("UpdateError",
                               "The update's archive holds another version than was announced.")},
    Sentence{
        updateNotNewer,
        QT_TRANSLATE_NOOP("UpdateError", "The update is not newer than this version of Quillon.")},
    Sentence{updateDoesNotRun,
             QT_TRANSLATE_NOOP("UpdateError", "The new version does not start on this computer.")},
};

/// System errors whose cause is the place of the application. Each has the sentence of its code,
/// unless it has its own.
struct SystemError {
    int number;
    int code;
    const char* text;
};

constexpr std::array systemErrors{
    SystemError{EROFS, updateOnReadOnlyVolume, nullptr},
    SystemError{EACCES, updateNotPermitted, nullptr},
    SystemError{EPERM, updateNotPermitted, nullptr},
    SystemError{
        ENOSPC, updateCopyFailed,
        QT_TRANSLATE_NOOP("UpdateError", "There is not enough room on the disk for the update.")},
    SystemError{
        EDQUOT, updateCopyFailed,
        QT_TRANSLATE_NOOP("UpdateError", "There is not enough room on the disk for the update.")},
    SystemError{EINVAL, updateCopyFailed,
                QT_TRANSLATE_NOOP(
                    "UpdateError",
                    "The disk that Quillon lies on cannot exchange two folders in one step.")},
    SystemError{ENOSYS, updateCopyFailed,
                QT_TRANSLATE_NOOP(
                    "UpdateError",
                    "The disk that Quillon lies on cannot exchange two folders in one step.")},
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
    if (found != sentences.end()) error.description = translate(context, found->text);
    return error;
}

UpdateError fileError(int systemError) {
    const auto found = entry(systemErrors, systemError);
    if (found == systemErrors.end()) return updateError(updateCopyFailed);
    UpdateError error = updateError(found->code);
    if (found->text) error.description = translate(context, found->text);
    return error;
}

} // namespace quillon
