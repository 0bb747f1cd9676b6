#include "update/Errors.h"

#include "base/Translate.h"

#include <cerrno>
#include <map>

namespace quillon {

namespace {

const std::map<int, const char*> sentences{
    {updateOnReadOnlyVolume,
     QT_TRANSLATE_NOOP(
         "UpdateError",
         "Quillon cannot update itself where it lies now: that disk cannot be written to.")},
    {updateWhileTranslocated,
     QT_TRANSLATE_NOOP(
         "UpdateError",
         "Quillon cannot update itself from the temporary place it was started from.")},
    {updateCopyFailed,
     QT_TRANSLATE_NOOP("UpdateError", "The update could not be copied to where Quillon lies.")},
    {updateInstalling,
     QT_TRANSLATE_NOOP("UpdateError",
                       "Another Quillon is installing an update, or has just done so.")},
    {updateNotPermitted,
     QT_TRANSLATE_NOOP("UpdateError",
                       "You are not allowed to change the folder that Quillon lies in.")},
    {updateCancelled, QT_TRANSLATE_NOOP("UpdateError", "The update was cancelled.")},
    {updateFeedNotAllowed,
     QT_TRANSLATE_NOOP("UpdateError",
                       "The address to look for updates at is not a secure one (https).")},
    {updateFeedUnreachable,
     QT_TRANSLATE_NOOP(
         "UpdateError",
         "The list of updates could not be fetched. Check your connection and try again.")},
    {updateFeedBroken, QT_TRANSLATE_NOOP("UpdateError", "The list of updates is broken.")},
    {updateKeyMissing,
     QT_TRANSLATE_NOOP(
         "UpdateError",
         "This copy of Quillon holds no key to check updates with, so it cannot update itself.")},
    {updateNotAllowed,
     QT_TRANSLATE_NOOP("UpdateError", "The update's address is not a secure one (https).")},
    {updateDownloadFailed,
     QT_TRANSLATE_NOOP("UpdateError",
                       "The update could not be downloaded. Check your connection and try again.")},
    {updateLengthWrong,
     QT_TRANSLATE_NOOP("UpdateError",
                       "The downloaded update does not have the size it should have.")},
    {updateSignatureWrong,
     QT_TRANSLATE_NOOP(
         "UpdateError",
         "The downloaded update is not signed by Quillon's makers, so it was thrown away.")},
    {updateDownloadNotStored,
     QT_TRANSLATE_NOOP("UpdateError",
                       "The downloaded update could not be stored in your cache folder.")},
    {updateArchiveDamaged,
     QT_TRANSLATE_NOOP("UpdateError",
                       "The update's archive is damaged, encrypted or of another kind.")},
    {updateArchiveAbsolutePath,
     QT_TRANSLATE_NOOP(
         "UpdateError",
         "The update's archive holds a path outside of its folder, so it was thrown away.")},
    {updateArchiveParentPath,
     QT_TRANSLATE_NOOP("UpdateError",
                       "The update's archive holds a path with \"..\", so it was thrown away.")},
    {updateArchiveLink,
     QT_TRANSLATE_NOOP(
         "UpdateError",
         "The update's archive holds a link that leaves its folder, so it was thrown away.")},
    {updateArchiveSpecialFile,
     QT_TRANSLATE_NOOP(
         "UpdateError",
         "The update's archive holds a device, pipe or socket, so it was thrown away.")},
    {updateArchivePrivileges,
     QT_TRANSLATE_NOOP("UpdateError", "The update's archive holds a program with another user's "
                                      "rights, so it was thrown away.")},
    {updateArchiveTooLarge,
     QT_TRANSLATE_NOOP("UpdateError",
                       "The update is too large when unpacked, so it was thrown away.")},
    {updateNoApplication,
     QT_TRANSLATE_NOOP("UpdateError",
                       "The update's archive does not hold exactly one application.")},
    {updateOtherApplication,
     QT_TRANSLATE_NOOP("UpdateError",
                       "The update's archive holds another application than Quillon.")},
    {updateOtherVersion,
     QT_TRANSLATE_NOOP("UpdateError",
                       "The update's archive holds another version than was announced.")},
    {updateNotNewer,
     QT_TRANSLATE_NOOP("UpdateError", "The update is not newer than this version of Quillon.")},
    {updateDoesNotRun,
     QT_TRANSLATE_NOOP("UpdateError", "The new version does not start on this computer.")},
};

} // namespace

UpdateError updateError(int code) {
    return {.domain = std::string{SUSparkleErrorDomain},
            .code = code,
            .description = translate("UpdateError", sentences.at(code))};
}

UpdateError fileError(int systemError) {
    UpdateError error = updateError(updateCopyFailed);
    switch (systemError) {
    case EROFS:
        return updateError(updateOnReadOnlyVolume);
    case EACCES:
    case EPERM:
        return updateError(updateNotPermitted);
    case ENOSPC:
    case EDQUOT:
        error.description =
            translate("UpdateError", "There is not enough room on the disk for the update.");
        break;
    case EINVAL:
    case ENOSYS:
        error.description =
            translate("UpdateError",
                      "The disk that Quillon lies on cannot exchange two folders in one step.");
        break;
    default:
        break;
    }
    return error;
}

} // namespace quillon
