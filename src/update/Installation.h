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
#include <variant>

namespace quillon {

/// The folders in which an update waits beside the application have names with this prefix.
inline constexpr std::string_view stagingPrefix = ".Quillon-update-";

/// The folders for downloads, in the identifier's cache folder, have names with this prefix.
inline constexpr std::string_view downloadPrefix = "update-";

/// The limit for a new program to print its version.
inline constexpr std::chrono::milliseconds versionTimeout{std::chrono::seconds{10}};

/// A new version that has been checked and lies beside the running one. Its folder exists as long
/// as a copy of this.
struct PreparedUpdate {
    /// The application folder to be replaced.
    std::filesystem::path bundle;
    /// The new application folder, inside `folder`.
    std::filesystem::path staged;
    std::shared_ptr<PrivateFolder> folder;
    FeedItem item;
};

/// The reason why an application in this place cannot be replaced: 1005 below a folder
/// "AppTranslocation", 1003 on a read-only file system, 4012 if this user may not write. Quick.
[[nodiscard]] std::optional<UpdateError> objectionToUpdating(const std::filesystem::path& bundle);

/// A new folder beside the application, for its next version. The error is objectionToUpdating's,
/// or tells why there is no folder. A test exchanges two empty folders there: error 4000 if the
/// file system cannot do that in one step. Quick.
[[nodiscard]] std::variant<std::shared_ptr<PrivateFolder>, UpdateError>
makeStaging(const std::filesystem::path& bundle);

/// The application that was unpacked into `folder`, or the reason why it must not replace
/// `running`. It must be exactly one application folder, with the same identifier, the item's
/// version and short version, newer than the running one, and its program must start and print
/// "quillon SHORTVERSION". Starts that program: not for the main thread.
[[nodiscard]] std::variant<std::filesystem::path, UpdateError>
checkStaged(const std::filesystem::path& folder, const Bundle& running, const FeedItem& item,
            std::chrono::milliseconds timeout = versionTimeout);

/// The version for comparing: the bundle's "CFBundleVersion", else its short version.
[[nodiscard]] std::string comparedVersion(const Bundle& bundle);

/// Writes a tree through to the disk; false if that fails. Not for the main thread.
[[nodiscard]] bool flushTree(const std::filesystem::path& folder);

/// Replaces the old version by the new one in one atomic step, under a lock that keeps other
/// processes from doing the same. The old version stays in the staging folder until
/// removeLeftovers. After an error nothing has changed. Quick: may be called at quit.
[[nodiscard]] std::optional<UpdateError> install(const PreparedUpdate& update);

/// Removes what earlier updates of this application have left beside it and in the cache. Call it
/// at each start of an application folder. May take long: not for the main thread.
void removeLeftovers(const Bundle& bundle, const Folders& folders);

} // namespace quillon
