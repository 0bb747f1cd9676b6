#pragma once

#include "platform/UpdateFramework.h"
#include "update/Preparation.h"

#include <QFuture>

#include <stop_token>
#include <string>

namespace quillon {

/// A new version as the user is told of it.
struct UpdateOffer {
    /// Short versions, as in "1.0".
    std::string installedVersion;
    std::string version;
    /// Plain text or HTML from outside, of any length.
    std::string notes;
    /// The user did not ask: it is shown without taking the focus.
    bool gently = false;

    bool operator==(const UpdateOffer&) const = default;
};

enum class UpdateChoice { install, later, skip };

/// When a prepared update takes the running one's place.
enum class InstallTime {
    nowAndRelaunch, ///< the running program makes way
    now,            ///< the running program goes on as it is
    onQuit,
};

/// Shows the user how an update comes along, and asks what is to be done. One thing shows at a
/// time: each takes the place of the one before, except that the permission question stands alone.
/// Every future finishes, at the latest when what asks is closed or goes; none is cancelled. All on
/// the main thread.
class UpdateUserDriver {
public:
    virtual ~UpdateUserDriver() = default;

    /// Whether to check for updates once a day.
    [[nodiscard]] virtual QFuture<bool> askPermission() = 0;

    /// A check runs that the user has asked for; `cancel` is told when it is not wanted any more.
    virtual void showChecking(std::stop_source cancel) = 0;
    /// There is nothing newer than this short version.
    virtual void showUpToDate(std::string version) = 0;
    [[nodiscard]] virtual QFuture<UpdateChoice> showUpdate(UpdateOffer offer) = 0;

    /// The short version is on its way; showProgress is called from now on.
    virtual void showPreparing(std::string version, std::stop_source cancel) = 0;
    virtual void showProgress(UpdateProgress progress) = 0;
    [[nodiscard]] virtual QFuture<InstallTime> showReady(std::string version) = 0;
    /// The short version has been installed, and the running program goes on.
    virtual void showInstalled(std::string version) = 0;

    virtual void showError(UpdateError error) = 0;

    /// Brings what shows to the front, with the focus.
    virtual void comeForward() = 0;
    /// Takes away what shows.
    virtual void dismiss() = 0;
};

} // namespace quillon
