#include "maintenance/Updater.h"

#include "analytics/Analytics.h"
#include "maintenance/AppMover.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"

#include <algorithm>
#include <array>
#include <chrono>

#include <syslog.h>

namespace quillon {

namespace {

using namespace std::chrono_literals;

constexpr std::string_view lastVersionKey = "qln.lastVersion";
constexpr std::string_view feedKey = "SUFeedURL";
constexpr std::string_view buildKey = "CFBundleVersion";

/// Gives the user time to read the framework's own message before the offer comes up.
constexpr std::chrono::milliseconds reofferDelay = 500ms;

/// The errors that a move to the Applications folder cures.
constexpr std::array<int, 4> curedByMoving{updateOnReadOnlyVolume, updateWhileTranslocated,
                                           updateCopyFailed, updateNotPermitted};

void writeToSystemLog(const std::string& line) {
    syslog(LOG_USER | LOG_ERR, "%s", line.c_str());
}

} // namespace

Updater::Updater(const Platform& platform, Analytics& analytics, UpdaterHooks hooks)
    : platform_{platform},
      analytics_{analytics},
      hooks_{std::move(hooks)} {
    if (!hooks_.log) hooks_.log = writeToSystemLog;
}

void Updater::start() {
    noteVersion();
    if (framework_ || !platform_.bundle.isApplication() || !platform_.bundle.text(feedKey)) return;
    std::unique_ptr<UpdateFramework> framework = hooks_.makeFramework();
    if (const auto error = framework->start(*this)) {
        hooks_.log("Quillon: updater didn't start: " + error->description);
        return;
    }
    framework_ = std::move(framework);
    publish(available_, true);
    framework_->observeCanCheck([this](bool can) {
        QMetaObject::invokeMethod(
            this, [this, can] { publish(canCheck_, can); }, Qt::QueuedConnection);
    });
}

std::string Updater::version() const {
    const std::string version = platform_.bundle.shortVersion();
    const std::string build = platform_.bundle.text(buildKey).value_or("");
    return build.empty() || build == version ? version : version + " (" + build + ")";
}

void Updater::checkForUpdates() const {
    if (!controller()) return;
    platform_.workspace.activate();
    controller()->checkForUpdates();
}

void Updater::noteVersion() {
    const std::string current = platform_.bundle.shortVersion();
    const auto last = platform_.defaults.text(lastVersionKey);
    if (last == current) return;
    if (last) analytics_.track("updated", {{"from_version", *last}});
    platform_.defaults.setText(lastVersionKey, current);
}

void Updater::publish(bool& field, bool value) {
    if (field == value) return;
    Q_EMIT objectWillChange();
    field = value;
}

bool Updater::mayPerformUpdateCheck(UpdateCheck check) {
    const std::string how = check == UpdateCheck::inBackground ? "auto" : "manual";
    QMetaObject::invokeMethod(
        this,
        [this, how] {
            analytics_.track("update_checked", {{"how", how}});
        },
        Qt::QueuedConnection);
    return true;
}

void Updater::didAbortWithError(const UpdateError& error) {
    if (error.domain != SUSparkleErrorDomain) return;
    if (std::ranges::find(curedByMoving, error.code) == curedByMoving.end()) return;
    reoffer_ = platform_.clock.after(reofferDelay, [this] { offerMoveAgain(); });
}

void Updater::offerMoveAgain() {
    if (!hooks_.shouldAskToMove()) return;
    // The user may have declined before the place stood in the way of an update: ask again.
    platform_.defaults.remove(AppMover::declinedKey);
    hooks_.askToMove();
}

void Updater::willHandleShowingUpdate() {
    QMetaObject::invokeMethod(
        this, [this] { platform_.workspace.activate(); }, Qt::QueuedConnection);
}

} // namespace quillon
