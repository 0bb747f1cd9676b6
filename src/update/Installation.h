#pragma once

#include "platform/Bundle.h"
#include "platform/Folders.h"
#include "platform/UpdateFramework.h"
#include "update/Feed.h"
#include "update/PrivateFolder.h"

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace quillon {

/// How the folders are called in which an update waits beside the application.
inline constexpr std::string_view stagingPrefix = ".Quillon-update-";

/// How the folders are called in which an archive arrives, in the identifier's cache folder.
inline constexpr std::string_view downloadPrefix = "update-";

/// How long a new program may take to tell its version.
inline constexpr std::chrono::milliseconds versionTimeout{std::chrono::seconds{10}};

/// A new version that lies checked beside the running one. As long as a copy of this exists, so
/// does the folder.
struct PreparedUpdate {
    /// The application folder to be replaced.
    std::filesystem::path bundle;
    /// The new one, inside `folder`.
    std::filesystem::path staged;
    std::shared_ptr<PrivateFolder> folder;
    FeedItem item;
};

/// Why an application that lies here cannot be replaced: 1005 below a folder "AppTranslocation",
/// 1003 on a read-only file system, 4012 where this user may not write. Quick.
[[nodiscard]] std::optional<UpdateError> objectionToUpdating(const std::filesystem::path& bundle);

/// A new folder beside the application, for its next version.
struct Staging {
    std::shared_ptr<PrivateFolder> folder;
    /// Why there is none, or why the application could not be exchanged from there.
    std::optional<UpdateError> error;
};

/// Makes the folder where nothing speaks against updating, and tries out the exchange of two empty
/// folders there: 4000 where the file system cannot do it in one step. Quick.
[[nodiscard]] Staging makeStaging(const std::filesystem::path& bundle);

/// What was found in the folder that an archive was unpacked into.
struct StagedBundle {
    std::filesystem::path path;
    /// Why it must not be installed.
    std::optional<UpdateError> error;
};

/// Looks at what was unpacked into `folder` to take the place of `running`: exactly one application
/// folder, the same identifier, the item's version and short version, newer than the running one,
/// with a program that starts and prints "quillon SHORTVERSION". Starts that program: not for the
/// main thread.
[[nodiscard]] StagedBundle checkStaged(const std::filesystem::path& folder, const Bundle& running,
                                       const FeedItem& item,
                                       std::chrono::milliseconds timeout = versionTimeout);

/// What versions are compared by: the bundle's "CFBundleVersion", else its short version.
[[nodiscard]] std::string comparedVersion(const Bundle& bundle);

/// Writes a tree through to the disk; false when that fails. Not for the main thread.
[[nodiscard]] bool flushTree(const std::filesystem::path& folder);

/// Puts the new version in the place of the old one in one atomic step, under a lock that keeps
/// other processes from doing the same; the old one stays in the staging folder until
/// removeLeftovers. When an error comes back, nothing has changed. Quick: may be called at quit.
[[nodiscard]] std::optional<UpdateError> install(const PreparedUpdate& update);

/// Removes what earlier updates of this application have left beside it and in the cache: to be
/// called at each start of an application folder. May take long: not for the main thread.
void removeLeftovers(const Bundle& bundle, const Folders& folders);

} // namespace quillon
