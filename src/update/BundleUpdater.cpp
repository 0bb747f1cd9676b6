#include "update/BundleUpdater.h"

#include "platform/Platform.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"
#include "platform/linux/desktop/LinuxBundle.h"
#include "update/Errors.h"
#include "update/Preparation.h"
#include "update/UpdateUserDriver.h"
#include "update/Version.h"

#include <QCoreApplication>
#include <QCoro/QCoroFuture>
#include <QtConcurrentRun>

#include <algorithm>
#include <charconv>
#include <tuple>
#include <utility>

namespace quillon {

namespace {

using namespace std::chrono_literals;
using std::chrono::seconds;

constexpr std::string_view feedKey = "SUFeedURL";
constexpr std::string_view publicKeyKey = "SUPublicEDKey";
constexpr std::string_view automaticKey = "SUEnableAutomaticChecks";
constexpr std::string_view launchedBeforeKey = "SUHasLaunchedBefore";
/// Seconds since 1970-01-01 UTC.
constexpr std::string_view lastCheckKey = "SULastCheckTime";
/// The skipped version, in the form in which versions are compared.
constexpr std::string_view skippedKey = "SUSkippedVersion";

constexpr seconds checkInterval{86'400};
/// The first check waits this long, for the launch and, at login, the network.
constexpr std::chrono::milliseconds launchPatience = 10s;
/// Timers stop while the machine sleeps and do not notice when the clock is set, so the time of day
/// is checked this often.
constexpr std::chrono::milliseconds longestNap = 1h;

seconds sinceEpoch(Clock::Time time) {
    return std::chrono::floor<seconds>(time.time_since_epoch());
}

/// A time in seconds; none when the text is anything else.
std::optional<seconds> parseSeconds(const std::string& text) {
    seconds::rep value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return seconds{value};
}

/// Whether the version, in the form in which versions are compared, is newer than the bundle.
bool isNewer(const std::string& version, const Bundle& bundle) {
    return std::is_gt(compareVersions(version, comparedVersion(bundle)));
}

} // namespace

BundleUpdater::BundleUpdater(Platform& platform, UpdateUserDriver& driver, Schedule schedule)
    : platform_{platform},
      driver_{driver},
      schedule_{schedule} {}

BundleUpdater::~BundleUpdater() {
    stop_.request_stop();
}

std::optional<UpdateError> BundleUpdater::start(UpdaterDelegate& delegate) {
    feedUrl_ = platform_.bundle.text(feedKey).value_or("");
    if (!isAllowedUrl(feedUrl_)) return updateError(updateFeedNotAllowed);
    if (!parsePublicKey(platform_.bundle.text(publicKeyKey).value_or("")))
        return updateError(updateKeyMissing);
    delegate_ = &delegate;
    QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, &context_,
                     [this] { finishOnQuit(); });
    if (schedule_ == Schedule::none) return std::nullopt;
    // Nothing depends on this; the process waits for the thread pool at its end.
    std::ignore = QtConcurrent::run(removeLeftovers, platform_.bundle, platform_.folders);
    greetOrAskPermission();
    schedule(std::clamp(untilNextCheck(), launchPatience, longestNap));
    return std::nullopt;
}

void BundleUpdater::observeCanCheck(std::function<void(bool)> observer) {
    observer_ = std::move(observer);
    observer_(canCheck());
}

void BundleUpdater::enter(Phase phase) {
    const bool before = canCheck();
    phase_ = phase;
    if (observer_ && canCheck() != before) observer_(canCheck());
}

// --- when ---------------------------------------------------------------------------------------

bool BundleUpdater::automaticallyChecksForUpdates() const {
    return platform_.defaults.flag(automaticKey).value_or(false);
}

void BundleUpdater::setAutomaticallyChecksForUpdates(bool automatically) {
    platform_.defaults.setFlag(automaticKey, automatically);
    schedule(std::clamp(untilNextCheck(), launchPatience, longestNap));
}

void BundleUpdater::greetOrAskPermission() {
    if (platform_.defaults.flag(automaticKey)) return;
    if (platform_.defaults.flag(launchedBeforeKey).value_or(false)) {
        askPermission();
    } else {
        platform_.defaults.setFlag(launchedBeforeKey, true);
    }
}

QCoro::Task<> BundleUpdater::askPermission() {
    const bool granted = co_await driver_.askPermission();
    setAutomaticallyChecksForUpdates(granted);
}

std::chrono::milliseconds BundleUpdater::untilNextCheck() const {
    const auto now = sinceEpoch(platform_.clock.now());
    const auto last = parseSeconds(platform_.defaults.text(lastCheckKey).value_or(""));
    // A last check in the future means that the clock was wrong then or is now. A check now stores
    // a time that fits.
    if (!last || *last < 0s || *last > now) return 0ms;
    return std::max(0s, checkInterval - std::min(checkInterval, now - *last));
}

void BundleUpdater::schedule(std::chrono::milliseconds delay) {
    timer_.reset();
    if (!delegate_ || schedule_ == Schedule::none || !automaticallyChecksForUpdates()) return;
    timer_ = platform_.clock.after(delay, [this] { tick(); });
}

void BundleUpdater::tick() {
    const std::chrono::milliseconds wait = untilNextCheck();
    schedule(wait > 0ms ? std::min(wait, longestNap) : longestNap);
    if (wait == 0ms && phase_ == Phase::idle && !prepared_) check(UpdateCheck::inBackground);
}

// --- what ---------------------------------------------------------------------------------------

void BundleUpdater::checkForUpdates() {
    check(UpdateCheck::byUser);
}

QCoro::Task<> BundleUpdater::check(UpdateCheck check) {
    if (!delegate_ || abandoned_ || phase_ == Phase::working) co_return;
    if (phase_ == Phase::waiting) {
        driver_.comeForward();
        co_return;
    }
    if (prepared_ && !isNewer(prepared_->item.version, present())) dropPrepared();
    if (prepared_) {
        co_await offerInstallation();
    } else if (delegate_->mayPerformUpdateCheck(check)) {
        co_await lookForUpdate(check);
    }
    enter(Phase::idle);
}

QCoro::Task<> BundleUpdater::lookForUpdate(UpdateCheck check) {
    enter(Phase::working);
    const bool background = check == UpdateCheck::inBackground;
    platform_.defaults.setText(lastCheckKey,
                               std::to_string(sinceEpoch(platform_.clock.now()).count()));
    const std::stop_source cancel;
    if (!background) driver_.showChecking(cancel);
    const auto feed = co_await fetchFeed(platform_, feedUrl_, cancel.get_token());
    if (cancel.stop_requested()) co_return;
    if (const auto* error = std::get_if<UpdateError>(&feed)) {
        // No window waits for a check in the background.
        if (!background) driver_.showError(*error);
        delegate_->didAbortWithError(*error);
        co_return;
    }
    // A user who asks is also told of a skipped version.
    const std::string skipped =
        background ? platform_.defaults.text(skippedKey).value_or("") : std::string{};
    const Bundle bundle = present();
    const FeedItem* newest =
        newestUpdate(std::get<std::vector<FeedItem>>(feed), comparedVersion(bundle),
                     platform_.system.version, skipped);
    if (newest) {
        FeedItem item = *newest;
        co_await offer(std::move(item), background);
    } else if (!background && isNewer(comparedVersion(bundle), platform_.bundle)) {
        driver_.showInstalled(bundle.shortVersion());
    } else if (!background) {
        driver_.showUpToDate(bundle.shortVersion());
    }
}

QCoro::Task<> BundleUpdater::offer(FeedItem item, bool gently) {
    UpdateOffer offered{.installedVersion = present().shortVersion(),
                        .version = item.shortVersion,
                        .notes = item.notes,
                        .gently = gently && delegate_->supportsGentleScheduledUpdateReminders()};
    // What nobody asked for is shown beside what the user is doing, and the delegate brings windows
    // to the front.
    if (!offered.gently) delegate_->willHandleShowingUpdate();
    enter(Phase::waiting);
    const UpdateChoice choice = co_await driver_.showUpdate(std::move(offered));
    if (choice == UpdateChoice::skip) platform_.defaults.setText(skippedKey, item.version);
    if (choice == UpdateChoice::install) {
        co_await prepare(std::move(item));
    }
}

QCoro::Task<> BundleUpdater::prepare(FeedItem item) {
    if (abandoned_) co_return;
    enter(Phase::working);
    stop_ = std::stop_source{};
    driver_.showPreparing(item.shortVersion, stop_);
    std::function<void(UpdateProgress)> progress = [this](UpdateProgress news) {
        driver_.showProgress(news);
    };
    auto outcome =
        co_await prepareUpdate(platform_, std::move(item), std::move(progress), stop_.get_token());
    if (const auto* error = std::get_if<UpdateError>(&outcome)) {
        const bool cancelled = error->code == updateCancelled;
        cancelled ? driver_.dismiss() : fail(*error);
        co_return;
    }
    prepared_ = std::get<PreparedUpdate>(std::move(outcome));
    installsOnQuit_ = !delegate_->willInstallUpdateOnQuit();
    if (abandoned_) {
        dropPrepared();
        co_return;
    }
    co_await offerInstallation();
}

QCoro::Task<> BundleUpdater::offerInstallation() {
    enter(Phase::waiting);
    const InstallTime time = co_await driver_.showReady(prepared_->item.shortVersion);
    if (time == InstallTime::onQuit || !prepared_) co_return;
    enter(Phase::working);
    installNow(time == InstallTime::nowAndRelaunch);
}

void BundleUpdater::installNow(bool relaunch) {
    const std::string version = prepared_->item.shortVersion;
    const auto error = install(*prepared_);
    dropPrepared();
    if (error) {
        fail(*error);
    } else if (relaunch) {
        platform_.workspace.openAfterExit(platform_.bundle.url);
        platform_.workspace.terminate();
    } else {
        driver_.showInstalled(version);
    }
}

void BundleUpdater::finishOnQuit() {
    stop_.request_stop();
    if (!prepared_ || !installsOnQuit_) return;
    if (const auto error = install(*prepared_)) delegate_->didAbortWithError(*error);
    dropPrepared();
}

void BundleUpdater::fail(const UpdateError& error) {
    driver_.showError(error);
    delegate_->didAbortWithError(error);
}

void BundleUpdater::dropPrepared() {
    // Destroying the last copy removes a folder that may hold much.
    dropping_ = QtConcurrent::run(
        [update = std::exchange(prepared_, std::nullopt)]() mutable { update.reset(); });
}

bool BundleUpdater::abandon() {
    abandoned_ = true;
    stop_.request_stop();
    if (prepared_) dropPrepared();
    return phase_ != Phase::working && dropping_.isFinished();
}

Bundle BundleUpdater::present() const {
    Bundle found = bundleAt(platform_.bundle.url);
    return isNewer(comparedVersion(found), platform_.bundle) ? found : platform_.bundle;
}

} // namespace quillon
