#pragma once

#include "platform/Clock.h"
#include "platform/UpdateFramework.h"
#include "update/Feed.h"
#include "update/Installation.h"

#include <QCoro/QCoroTask>
#include <QFuture>
#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>

namespace quillon {

struct Platform;
class UpdateUserDriver;

/// Keeps a running application folder up to date, from the feed that its "SUFeedURL" names and with
/// archives that the owner of its "SUPublicEDKey" has signed. Checks when told to, and once a day
/// if the user has agreed; it asks for that at the second launch. What another process has
/// installed meanwhile is not offered again. Must outlive its tasks.
class BundleUpdater final : public UpdateFramework {
public:
    enum class Schedule {
        daily, ///< if the user's preferences say so
        none,  ///< checks only when told to, asks and cleans up nothing
    };

    BundleUpdater(Platform& platform, UpdateUserDriver& driver,
                  Schedule schedule = Schedule::daily);
    ~BundleUpdater() override;

    /// Fails with updateFeedNotAllowed if the bundle has no feed that may be read, and with
    /// updateKeyMissing if it has no valid key.
    [[nodiscard]] std::optional<UpdateError> start(UpdaterDelegate& delegate) override;
    void observeCanCheck(std::function<void(bool)> observer) override;
    void checkForUpdates() override;
    [[nodiscard]] bool automaticallyChecksForUpdates() const override;
    void setAutomaticallyChecksForUpdates(bool automatically) override;
    [[nodiscard]] bool abandon() override;

    /// Checks and carries out the user driver's answers to the end. If a question to the user is
    /// open, only brings that to the front; does nothing while a check cannot start.
    QCoro::Task<> check(UpdateCheck check);

private:
    enum class Phase {
        idle,
        working, ///< checking, preparing or installing
        waiting, ///< for the user's answer
    };

    void enter(Phase phase);
    [[nodiscard]] bool canCheck() const { return phase_ != Phase::working; }

    void greetOrAskPermission();
    QCoro::Task<> askPermission();
    [[nodiscard]] std::chrono::milliseconds untilNextCheck() const;
    void schedule(std::chrono::milliseconds delay);
    void tick();

    [[nodiscard]] QCoro::Task<> lookForUpdate(UpdateCheck check);
    [[nodiscard]] QCoro::Task<> offer(FeedItem item, bool gently);
    [[nodiscard]] QCoro::Task<> prepare(FeedItem item);
    [[nodiscard]] QCoro::Task<> offerInstallation();
    void installNow(bool relaunch);
    void finishOnQuit();
    void fail(const UpdateError& error);
    void dropPrepared();
    /// What lies at the running bundle's place now, where another process may have installed a
    /// newer version.
    [[nodiscard]] Bundle present() const;

    Platform& platform_;
    UpdateUserDriver& driver_;
    Schedule schedule_;
    UpdaterDelegate* delegate_ = nullptr;
    std::string feedUrl_;
    Phase phase_ = Phase::idle;
    std::function<void(bool)> observer_;
    std::unique_ptr<Clock::Timer> timer_;
    /// Stops the present preparation.
    std::stop_source stop_;
    std::optional<PreparedUpdate> prepared_;
    bool installsOnQuit_ = false;
    bool abandoned_ = false;
    /// The removal of an update that was dropped.
    QFuture<void> dropping_;
    /// Destroying this disconnects from the application's signal.
    QObject context_;
};

} // namespace quillon
