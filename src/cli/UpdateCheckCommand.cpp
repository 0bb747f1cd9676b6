#include "cli/UpdateCheckCommand.h"

#include "analytics/Analytics.h"
#include "cli/Terminal.h"
#include "platform/Platform.h"
#include "telegram/TelegramError.h"
#include "update/BundleUpdater.h"
#include "update/UpdateUserDriver.h"

#include <memory>

namespace quillon {

namespace {

/// Tells a terminal how an update comes along, and answers for its user.
class TerminalUpdateDriver final : public UpdateUserDriver {
public:
    explicit TerminalUpdateDriver(bool install) : install_{install} {}

    [[nodiscard]] int exitCode() const { return exitCode_; }

    [[nodiscard]] QFuture<bool> askPermission() override {
        return QtFuture::makeReadyFuture(false);
    }
    void showChecking(std::stop_source /*cancel*/) override {}
    void showUpToDate(std::string version) override {
        Terminal::print("Quillon " + version + " is up to date.");
    }
    [[nodiscard]] QFuture<UpdateChoice> showUpdate(UpdateOffer offer) override {
        if (install_) return QtFuture::makeReadyFuture(UpdateChoice::install);
        Terminal::print("Quillon " + offer.version + " is available.");
        return QtFuture::makeReadyFuture(UpdateChoice::later);
    }
    void showPreparing(std::string /*version*/, std::stop_source /*cancel*/) override {
        progress_ = std::make_unique<Terminal::Progress>("Downloading…");
    }
    void showProgress(UpdateProgress progress) override {
        progress_->update(progress.received, progress.total);
        progress_->show();
    }
    [[nodiscard]] QFuture<InstallTime> showReady(std::string /*version*/) override {
        dismiss();
        return QtFuture::makeReadyFuture(InstallTime::now);
    }
    void showInstalled(std::string version) override {
        Terminal::print("Quillon " + version + " is installed.");
    }
    void showError(UpdateError error) override {
        dismiss();
        Terminal::printError(error.description);
        exitCode_ = exitFailed;
    }
    void comeForward() override {}
    void dismiss() override {
        if (progress_) progress_->end();
    }

private:
    bool install_;
    int exitCode_ = exitDone;
    std::unique_ptr<Terminal::Progress> progress_;
};

/// Records the check, as the running program does for its own.
class CheckRecorder final : public UpdaterDelegate {
public:
    explicit CheckRecorder(Analytics& analytics) : analytics_{analytics} {}

    bool mayPerformUpdateCheck(UpdateCheck /*check*/) override {
        analytics_.track("update_checked", {{"how", "manual"}});
        return true;
    }
    void didAbortWithError(const UpdateError& /*error*/) override {}
    bool willInstallUpdateOnQuit() override { return false; }
    bool supportsGentleScheduledUpdateReminders() override { return false; }
    void willHandleShowingUpdate() override {}

private:
    Analytics& analytics_;
};

} // namespace

QCoro::Task<int> runUpdateCheck(CommandContext context, bool install) {
    const Bundle& bundle = context.platform.bundle;
    if (!bundle.isApplication() || !bundle.text("SUFeedURL"))
        throw TelegramError{"This copy of Quillon does not update itself."};
    TerminalUpdateDriver driver{install};
    CheckRecorder recorder{context.analytics};
    BundleUpdater updater{context.platform, driver, BundleUpdater::Schedule::none};
    if (const auto error = updater.start(recorder)) throw TelegramError{error->description};
    co_await updater.check(install ? UpdateCheck::byUser : UpdateCheck::forInformation);
    co_return driver.exitCode();
}

} // namespace quillon
