#pragma once

#include "platform/Clock.h"
#include "platform/UpdateFramework.h"

#include <QCoroTask>
#include <QObject>

#include <functional>
#include <memory>
#include <string>

namespace quillon {

class Analytics;
struct Platform;

/// What the updater needs of the rest of the program.
struct UpdaterHooks {
    /// Called once at most, when the running bundle can be updated at all.
    std::function<std::unique_ptr<UpdateFramework>()> makeFramework;
    /// Whether it makes sense to offer a move to the Applications folder, and that offer.
    std::function<bool()> shouldAskToMove;
    std::function<QCoro::Task<bool>()> askToMove;
    /// Takes one line for the system log; when absent, syslog does.
    std::function<void(const std::string& line)> log;
};

/// Starts the update framework where the program can be updated, tells views what can be done with
/// it, records usage events, and offers the move to the Applications folder again when an update
/// failed because of the place of the program. Lives on the main thread as long as the process.
class Updater : public QObject, private UpdaterDelegate {
    Q_OBJECT

public:
    Updater(const Platform& platform, Analytics& analytics, UpdaterHooks hooks);

    /// To be called once at launch, after the offer to move. Notes the version; starts the
    /// framework where there is an application folder with a feed. A failure is logged, not shown.
    void start();

    /// A check can start now.
    [[nodiscard]] bool canCheck() const { return canCheck_; }
    /// The framework has started.
    [[nodiscard]] bool available() const { return available_; }
    /// The version for people: "1.1", or "1.1 (42)" where the build has a name of its own.
    [[nodiscard]] std::string version() const;
    /// The framework; null until it has started.
    [[nodiscard]] UpdateFramework* controller() const {
        return available_ ? framework_.get() : nullptr;
    }

    /// Has the framework look for a new version, for a user who asked, and brings its windows to
    /// the front. Does nothing while the framework has not started.
    void checkForUpdates() const;

Q_SIGNALS:
    /// canCheck or available is about to change.
    void objectWillChange();

private:
    void noteVersion();
    void publish(bool& field, bool value);

    bool mayPerformUpdateCheck(UpdateCheck check) override;
    void didAbortWithError(const UpdateError& error) override;
    bool willInstallUpdateOnQuit() override { return false; }
    bool supportsGentleScheduledUpdateReminders() override { return true; }
    void willHandleShowingUpdate() override;
    void offerMoveAgain();

    const Platform& platform_;
    Analytics& analytics_;
    UpdaterHooks hooks_;
    bool canCheck_ = false;
    bool available_ = false;
    std::unique_ptr<Clock::Timer> reoffer_;
    /// The last member, so that it is destroyed before what it calls.
    std::unique_ptr<UpdateFramework> framework_;
};

} // namespace quillon
