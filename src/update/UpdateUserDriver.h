#pragma once

#include "platform/UpdateFramework.h"
#include "update/Preparation.h"

#include <QFuture>

#include <stop_token>
#include <string>

namespace quillon {

/// A new version as it is presented to the user.
struct UpdateOffer {
    /// Short versions, as in "1.0".
    std::string installedVersion;
    std::string version;
    /// Plain text or HTML from outside, of any length.
    std::string notes;
    /// True if the user did not ask; then it is shown without taking the focus.
    bool gently = false;

    bool operator==(const UpdateOffer&) const = default;
};

enum class UpdateChoice { install, later, skip };

/// When a prepared update replaces the running version.
enum class InstallTime {
    nowAndRelaunch, ///< the running program ends
    now,            ///< the running program goes on
    onQuit,
};

/// Shows the user the progress of an update and asks what to do. Only one window shows at a time,
/// replacing the one before, except that the permission question is separate. Every future
/// finishes, at the latest when the window that asks is closed or destroyed; none is cancelled. All
/// on the main thread.
class UpdateUserDriver {
public:
    virtual ~UpdateUserDriver() = default;

    /// Whether to check for updates once a day.
    [[nodiscard]] virtual QFuture<bool> askPermission() = 0;

    /// Shows that a check runs that the user has asked for. A stop is requested of `cancel` if the
    /// user cancels it.
    virtual void showChecking(std::stop_source cancel) = 0;
    /// Shows that there is nothing newer than this short version.
    virtual void showUpToDate(std::string version) = 0;
    [[nodiscard]] virtual QFuture<UpdateChoice> showUpdate(UpdateOffer offer) = 0;

    /// Shows that this short version is being downloaded; showProgress is called from now on.
    virtual void showPreparing(std::string version, std::stop_source cancel) = 0;
    virtual void showProgress(UpdateProgress progress) = 0;
    [[nodiscard]] virtual QFuture<InstallTime> showReady(std::string version) = 0;
    /// Shows that this short version has been installed while the running program goes on.
    virtual void showInstalled(std::string version) = 0;

    virtual void showError(UpdateError error) = 0;

    /// Brings the present window to the front, with the focus.
    virtual void comeForward() = 0;
    /// Closes the present window.
    virtual void dismiss() = 0;
};

} // namespace quillon
