#include "cli/UpdateCheckCommand.h"

#include "base/Translate.h"
#include "cli/Console.h"
#include "core/Core.h"
#include "platform/Platform.h"
#include "telegram/TelegramError.h"
#include "update/BundleUpdater.h"
#include "update/UpdateUserDriver.h"

#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <utility>

namespace quillon {

namespace {

/// Prints how an update comes along, and answers in place of the user.
class ConsoleUpdateDriver final : public UpdateUserDriver {
public:
    /// `running` is the version of the program that stays and carries this out; empty where none
    /// does.
    ConsoleUpdateDriver(std::shared_ptr<Console> console, std::stop_token stop, bool install,
                        std::string running)
        : console_{std::move(console)},
          stop_{std::move(stop)},
          install_{install},
          running_{std::move(running)} {}

    [[nodiscard]] int exitCode() const { return exitCode_; }

    [[nodiscard]] QFuture<bool> askPermission() override {
        return QtFuture::makeReadyFuture(false);
    }
    void showChecking(std::stop_source /*cancel*/) override {}
    void showUpToDate(std::string version) override {
        console_->print(filled(translate("Command", "Quillon %1 is up to date."), {version}));
    }
    [[nodiscard]] QFuture<UpdateChoice> showUpdate(UpdateOffer offer) override {
        if (install_) return QtFuture::makeReadyFuture(UpdateChoice::install);
        console_->print(filled(translate("Command", "Quillon %1 is available."), {offer.version}));
        return QtFuture::makeReadyFuture(UpdateChoice::later);
    }
    void showPreparing(std::string /*version*/, std::stop_source cancel) override {
        stopping_.emplace(stop_, [cancel]() mutable { cancel.request_stop(); });
    }
    void showProgress(UpdateProgress progress) override {
        console_->progress(translate("Command", "Downloading…"), progress.received, progress.total);
    }
    [[nodiscard]] QFuture<InstallTime> showReady(std::string /*version*/) override {
        dismiss();
        return QtFuture::makeReadyFuture(InstallTime::now);
    }
    void showInstalled(std::string version) override {
        console_->print(filled(translate("Command", "Quillon %1 is installed."), {version}));
        if (running_.empty()) return;
        console_->print(filled(
            translate("Command",
                      "The one that runs is still %1, until you quit it and start it again."),
            {running_}));
    }
    void showError(UpdateError error) override {
        dismiss();
        console_->printError(error.description);
        exitCode_ = exitFailed;
    }
    void comeForward() override {}
    void dismiss() override { console_->endProgress(); }

private:
    std::shared_ptr<Console> console_;
    std::stop_token stop_;
    bool install_;
    std::string running_;
    std::optional<std::stop_callback<std::function<void()>>> stopping_;
    int exitCode_ = exitDone;
};

/// Records the check as a usage event, as the program that stays does.
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
        throw TelegramError{translate("Command", "This copy of Quillon does not update itself.")};
    ConsoleUpdateDriver driver{context.console, context.stop, install,
                               context.stays ? bundle.shortVersion() : std::string{}};
    CheckRecorder recorder{context.core.analytics};
    BundleUpdater updater{context.platform, driver, BundleUpdater::Schedule::none};
    if (const auto error = updater.start(recorder)) throw TelegramError{error->description};
    co_await updater.check(install ? UpdateCheck::byUser : UpdateCheck::forInformation);
    co_return driver.exitCode();
}

} // namespace quillon
