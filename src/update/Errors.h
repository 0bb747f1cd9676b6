#pragma once

#include "platform/UpdateFramework.h"

namespace quillon {

/// Errors that do not concern the place of the application, in the same domain as UpdateErrorCode.
enum UpdateFailureCode {
    updateCancelled = 2000,
    updateFeedNotAllowed = 2001,
    updateFeedUnreachable = 2002,
    updateFeedBroken = 2003,
    updateKeyMissing = 2100,
    updateNotAllowed = 2101,
    updateDownloadFailed = 2102,
    updateLengthWrong = 2103,
    updateSignatureWrong = 2104,
    updateDownloadNotStored = 2105,
    updateArchiveDamaged = 3000,
    updateArchiveAbsolutePath = 3001,
    updateArchiveParentPath = 3002,
    updateArchiveLink = 3003,
    updateArchiveSpecialFile = 3004,
    updateArchivePrivileges = 3005,
    updateArchiveTooLarge = 3006,
    updateNoApplication = 3100,
    updateOtherApplication = 3101,
    updateOtherVersion = 3102,
    updateNotNewer = 3103,
    updateDoesNotRun = 3104,
    updateInstalling = 4001,
};

/// The error of this UpdateErrorCode or UpdateFailureCode, with its sentence for the user.
[[nodiscard]] UpdateError updateError(int code);

/// The error for the errno of a system call that failed to change files beside the application. The
/// code is one of UpdateErrorCode, and the sentence names the cause.
[[nodiscard]] UpdateError fileError(int systemError);

} // namespace quillon
