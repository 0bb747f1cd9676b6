#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace quillon {

/// The reason why an update failed.
struct UpdateError {
    std::string domain;
    int code = 0;
    /// A finished sentence for the user.
    std::string description;

    bool operator==(const UpdateError&) const = default;
};

/// The domain of the update framework's own errors.
inline constexpr std::string_view SUSparkleErrorDomain = "SUSparkleErrorDomain";

/// Errors about the place where the application lies.
enum UpdateErrorCode {
    updateOnReadOnlyVolume = 1003,
    updateWhileTranslocated = 1005,
    updateCopyFailed = 4000,
    updateNotPermitted = 4012,
};

/// What started a check.
enum class UpdateCheck { inBackground, byUser, forInformation };

/// Is told what the framework does, and decides on some of it. All calls come on the main thread.
class UpdaterDelegate {
public:
    virtual ~UpdaterDelegate() = default;

    /// A check is about to start; false stops it.
    virtual bool mayPerformUpdateCheck(UpdateCheck check) = 0;
    /// A check or an installation has ended with an error. The user has been shown it, unless the
    /// check was in the background.
    virtual void didAbortWithError(const UpdateError& error) = 0;
    /// An update will be installed when the program quits. True if the delegate decides when.
    virtual bool willInstallUpdateOnQuit() = 0;
    /// Whether an update found by a scheduled check may be shown without taking the focus.
    virtual bool supportsGentleScheduledUpdateReminders() = 0;
    /// A window about an update is about to open for a user who asked for it.
    virtual void willHandleShowingUpdate() = 0;
};

/// Finds, checks and installs new versions of the running application. Lives on the main thread.
class UpdateFramework {
public:
    virtual ~UpdateFramework() = default;

    /// Starts the schedule; none if that succeeded. `delegate` outlives the framework.
    [[nodiscard]] virtual std::optional<UpdateError> start(UpdaterDelegate& delegate) = 0;

    /// Calls `observer` with whether a check can start now: at once, and at every change.
    virtual void observeCanCheck(std::function<void(bool)> observer) = 0;

    /// Checks now and shows the result; does nothing while a check cannot start.
    virtual void checkForUpdates() = 0;

    /// Whether it checks by itself, once a day. Kept from one start to the next.
    [[nodiscard]] virtual bool automaticallyChecksForUpdates() const = 0;
    virtual void setAutomaticallyChecksForUpdates(bool automatically) = 0;

    /// Drops the update that is being prepared or waits to be installed, and does nothing more, for
    /// the application is about to be removed. False while some of that update still lies on the
    /// disk; ask again a little later.
    [[nodiscard]] virtual bool abandon() = 0;
};

} // namespace quillon
