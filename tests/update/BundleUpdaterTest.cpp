#include "update/BundleUpdater.h"

#include "support/Await.h"
#include "support/TestComputer.h"
#include "update/Errors.h"
#include "update/UpdateSource.h"
#include "update/UpdateUserDriver.h"

#include <QThreadPool>

namespace quillon::test {

namespace {

/// A user who has made up their mind, or takes their time.
class FakeUser : public UpdateUserDriver {
public:
    std::vector<std::string> seen;
    bool permission = false;
    /// Absent as long as the user does not answer.
    std::optional<UpdateChoice> choice = UpdateChoice::later;
    InstallTime time = InstallTime::onQuit;
    bool cancels = false;

    [[nodiscard]] QFuture<bool> askPermission() override {
        seen.emplace_back("permission?");
        return QtFuture::makeReadyFuture(permission);
    }
    void showChecking(std::stop_source cancel) override {
        seen.emplace_back("checking");
        if (cancels) cancel.request_stop();
    }
    void showUpToDate(std::string version) override { seen.push_back("up to date " + version); }
    [[nodiscard]] QFuture<UpdateChoice> showUpdate(UpdateOffer offer) override {
        seen.push_back("update " + offer.installedVersion + " " + offer.version + " " +
                       offer.notes + (offer.gently ? " gently" : ""));
        if (choice) return QtFuture::makeReadyFuture(*choice);
        choiceLater_.start();
        return choiceLater_.future();
    }
    void showPreparing(std::string version, std::stop_source cancel) override {
        seen.push_back("preparing " + version);
        if (cancels) cancel.request_stop();
    }
    void showProgress(UpdateProgress progress) override { last = progress; }
    [[nodiscard]] QFuture<InstallTime> showReady(std::string version) override {
        seen.push_back("ready " + version);
        return QtFuture::makeReadyFuture(time);
    }
    void showInstalled(std::string version) override { seen.push_back("installed " + version); }
    void showError(UpdateError error) override {
        seen.push_back("error " + std::to_string(error.code));
    }
    void comeForward() override { seen.emplace_back("forward"); }
    void dismiss() override { seen.emplace_back("dismiss"); }

    /// What the user has seen since the last time.
    std::vector<std::string> news() { return std::exchange(seen, {}); }
    void choose(UpdateChoice now) {
        choiceLater_.addResult(now);
        choiceLater_.finish();
    }

    UpdateProgress last;

private:
    QPromise<UpdateChoice> choiceLater_;
};

/// Remembers what it was told.
class FakeDelegate : public UpdaterDelegate {
public:
    std::vector<UpdateCheck> checks;
    std::vector<int> errors;
    int showings = 0;

    bool mayPerformUpdateCheck(UpdateCheck check) override {
        checks.push_back(check);
        return true;
    }
    void didAbortWithError(const UpdateError& error) override { errors.push_back(error.code); }
    bool willInstallUpdateOnQuit() override { return false; }
    bool supportsGentleScheduledUpdateReminders() override { return true; }
    void willHandleShowingUpdate() override { ++showings; }
};

struct BundleUpdaterTest : testing::Test {
    BundleUpdaterTest() {
        place(application("1.0"), computer.platform.bundle.url.parent_path());
        computer.platform.bundle.info["SUFeedURL"] = source.feedUrl();
        computer.platform.bundle.info["SUPublicEDKey"] = source.maker.publicKey();
        source.publish("1.1");
        launch();
    }
    ~BundleUpdaterTest() override {
        updater.reset();
        QThreadPool::globalInstance()->waitForDone();
    }

    void launch() {
        updater = std::make_unique<BundleUpdater>(computer.platform, user);
        EXPECT_EQ(updater->start(delegate), std::nullopt);
        updater->observeCanCheck([this](bool can) { canCheck.push_back(can); });
    }
    /// Checks as the user does, until that has come to its end.
    std::vector<std::string> checkNow() {
        await(updater->check(UpdateCheck::byUser));
        return user.news();
    }
    /// Lets the time pass, in which a check may run to its end.
    std::vector<std::string> pass(std::chrono::milliseconds time) {
        computer.clock.advance(time);
        EXPECT_TRUE(waitUntil([this] { return canCheck.back(); }));
        return user.news();
    }
    /// How many checks there were since the last time.
    std::size_t checks() { return std::exchange(delegate.checks, {}).size(); }
    void quit() { QMetaObject::invokeMethod(qApp, "aboutToQuit"); }
    [[nodiscard]] std::string installed() const { return versionOf(computer.platform.bundle.url); }

    TestComputer computer;
    UpdateSource source;
    FakeUser user;
    FakeDelegate delegate;
    std::vector<bool> canCheck;
    std::unique_ptr<BundleUpdater> updater;
};

} // namespace

TEST_F(BundleUpdaterTest, StartsOnlyWithASecureFeedAndAKey) {
    const std::string key = source.maker.publicKey();
    const std::tuple<std::string, std::string, int> cases[] = {
        {"", key, updateFeedNotAllowed},
        {"http://example.com/feed.xml", key, updateFeedNotAllowed},
        {"https://example.com/feed.xml", "", updateKeyMissing},
        {"https://example.com/feed.xml", key + "A", updateKeyMissing},
        {"https://example.com/feed.xml", "AAAA", updateKeyMissing},
    };
    for (const auto& [feed, publicKey, code] : cases) {
        computer.platform.bundle.info["SUFeedURL"] = feed;
        computer.platform.bundle.info["SUPublicEDKey"] = publicKey;
        BundleUpdater other{computer.platform, user};
        EXPECT_EQ(other.start(delegate), updateError(code)) << feed;
        await(other.check(UpdateCheck::byUser)); // and stays off
        EXPECT_THAT(user.seen, IsEmpty());
    }
}

TEST_F(BundleUpdaterTest, InstallsAtOnceAndRelaunchesUnlessTheProgramIsToStay) {
    user.choice = UpdateChoice::install;
    user.time = InstallTime::nowAndRelaunch;
    EXPECT_THAT(checkNow(), ElementsAre("checking", "update 1.0 1.1 What is new", "preparing 1.1",
                                        "ready 1.1"));
    EXPECT_EQ(installed(), "1.1");
    EXPECT_EQ(user.last.stage, UpdateProgress::Stage::unpacking);
    EXPECT_THAT(computer.workspace.log,
                ElementsAre("open " + computer.platform.bundle.url.native(), "terminate"));
    EXPECT_THAT(delegate.checks, ElementsAre(UpdateCheck::byUser));
    EXPECT_EQ(delegate.showings, 1);
    EXPECT_THAT(delegate.errors, IsEmpty());
    // At the start; while it checks, but not while it asks; while it downloads; while it installs.
    EXPECT_THAT(canCheck, ElementsAre(true, false, true, false, true, false, true));
    quit(); // which must not put the old version back
    EXPECT_EQ(installed(), "1.1");

    computer.workspace.log.clear();
    source.publish("1.2");
    user.time = InstallTime::now;
    EXPECT_EQ(checkNow().back(), "installed 1.2");
    EXPECT_EQ(installed(), "1.2");
    EXPECT_THAT(computer.workspace.log, IsEmpty());
}

TEST_F(BundleUpdaterTest, InstallsOnQuitAndUntilThenOffersToDoSoNow) {
    user.choice = UpdateChoice::install;
    checkNow();
    EXPECT_EQ(installed(), "1.0");
    EXPECT_THAT(checkNow(), ElementsAre("ready 1.1"));
    computer.defaults.setFlag("SUEnableAutomaticChecks", true);
    updater->setAutomaticallyChecksForUpdates(true);
    EXPECT_THAT(pass(48h), IsEmpty());
    quit();
    EXPECT_EQ(installed(), "1.1");
    EXPECT_THAT(computer.workspace.log, IsEmpty());
    EXPECT_EQ(checks(), 1U);
}

TEST_F(BundleUpdaterTest, OffersNothingThatAnotherProcessHasInstalled) {
    user.choice = UpdateChoice::install;
    checkNow();
    // As another process does, while the same version waits here.
    std::filesystem::remove_all(computer.platform.bundle.url);
    place(application("1.1"), computer.platform.bundle.url.parent_path());
    EXPECT_THAT(checkNow(), ElementsAre("checking", "installed 1.1"));
    source.publish("1.2");
    EXPECT_THAT(checkNow(), ElementsAre("checking", "update 1.1 1.2 What is new", "preparing 1.2",
                                        "ready 1.2"));
}

TEST_F(BundleUpdaterTest, LeavesNothingOnceItIsAbandoned) {
    user.choice = UpdateChoice::install;
    for (const bool stalls : {false, true}) {
        source.stalls = stalls;
        launch();
        updater->checkForUpdates();
        const char* const last = stalls ? "preparing 1.1" : "ready 1.1";
        ASSERT_TRUE(waitUntil([&] { return !user.seen.empty() && user.seen.back() == last; }));
        EXPECT_TRUE(waitUntil([this] { return updater->abandon(); }));
        EXPECT_THAT(namesIn(computer.platform.bundle.url.parent_path()),
                    ElementsAre("Quillon.app"));
        EXPECT_THAT(namesIn(computer.home() / "cache/dev.vostrel.quillon"), IsEmpty());
        user.news();
        quit();
        EXPECT_THAT(checkNow(), IsEmpty());
        EXPECT_EQ(installed(), "1.0");
    }
}

TEST_F(BundleUpdaterTest, AsksOnceAtTheSecondLaunchAndThenChecksDaily) {
    EXPECT_THAT(pass(72h), IsEmpty()); // the first launch
    launch();
    EXPECT_THAT(pass(72h), ElementsAre("permission?"));
    EXPECT_EQ(checks(), 0U) << "the user did not want it";
    computer.defaults.remove("SUEnableAutomaticChecks");
    user.permission = true;
    launch();
    EXPECT_THAT(user.news(), ElementsAre("permission?"));
    EXPECT_TRUE(updater->automaticallyChecksForUpdates());
    source.publish("1.0");
    pass(10s);
    EXPECT_THAT(delegate.checks, ElementsAre(UpdateCheck::inBackground));
    checks();
    launch(); // neither the question nor the check again
    pass(86'399s);
    EXPECT_EQ(checks(), 0U);
    EXPECT_THAT(pass(1s), IsEmpty());
    EXPECT_EQ(checks(), 1U);
    EXPECT_THAT(checkNow(), ElementsAre("checking", "up to date 1.0"));
    updater->setAutomaticallyChecksForUpdates(false);
    launch();
    pass(72h);
    EXPECT_EQ(checks(), 1U) << "that by hand alone";
}

TEST_F(BundleUpdaterTest, ChecksOnceWhenTheClockHasJumped) {
    updater->setAutomaticallyChecksForUpdates(true);
    source.publish("1.0");
    pass(10s);
    EXPECT_EQ(checks(), 1U);
    for (const std::chrono::hours jump : {-2h, 24h * 365 * 20}) {
        computer.clock.jump(jump);
        pass(3h);
        EXPECT_EQ(checks(), 1U) << jump.count();
    }
}

TEST_F(BundleUpdaterTest, TellsOfASkippedVersionOnlyWhoAsks) {
    updater->setAutomaticallyChecksForUpdates(true);
    user.choice = UpdateChoice::skip;
    EXPECT_THAT(pass(10s), ElementsAre("update 1.0 1.1 What is new gently"));
    EXPECT_THAT(pass(24h), IsEmpty());
    EXPECT_EQ(delegate.showings, 0) << "comes to the front, though nobody has asked";
    user.choice = UpdateChoice::later;
    EXPECT_THAT(checkNow(), ElementsAre("checking", "update 1.0 1.1 What is new"));
    EXPECT_EQ(delegate.showings, 1);
    source.publish("1.2");
    EXPECT_THAT(pass(24h), ElementsAre("update 1.0 1.2 What is new gently"));
    EXPECT_THAT(pass(24h), ElementsAre("update 1.0 1.2 What is new gently")); // it was "later"
}

TEST_F(BundleUpdaterTest, BringsAnOpenQuestionForwardInsteadOfCheckingAgain) {
    user.choice.reset();
    updater->checkForUpdates();
    EXPECT_FALSE(canCheck.back());
    updater->checkForUpdates(); // does nothing now
    ASSERT_TRUE(waitUntil([this] { return canCheck.back(); }));
    user.news();
    updater->checkForUpdates();
    updater->setAutomaticallyChecksForUpdates(true);
    computer.clock.advance(48h);
    EXPECT_THAT(user.news(), ElementsAre("forward"));
    EXPECT_EQ(checks(), 1U);
    user.choose(UpdateChoice::later);
}

TEST_F(BundleUpdaterTest, ShowsAFailureOnlyToWhoAsked) {
    source.feedStatus = 503;
    EXPECT_THAT(checkNow(), ElementsAre("checking", "error 2002"));
    updater->setAutomaticallyChecksForUpdates(true);
    EXPECT_THAT(pass(24h), IsEmpty());
    EXPECT_THAT(delegate.errors, ElementsAre(2002, 2002));

    source.feedStatus = 200;
    source.publish("1.1", "no archive");
    user.choice = UpdateChoice::install;
    EXPECT_THAT(pass(24h),
                ElementsAre("update 1.0 1.1 What is new gently", "preparing 1.1", "error 3000"));
    EXPECT_EQ(delegate.errors.back(), updateArchiveDamaged);
    quit();
    EXPECT_EQ(installed(), "1.0");
}

TEST_F(BundleUpdaterTest, EndsWithoutAWordWhenTheUserCancels) {
    user.choice = UpdateChoice::install;
    user.cancels = true;
    EXPECT_THAT(checkNow(), ElementsAre("checking"));
    // In the background nothing shows that could be cancelled, until the user installs.
    source.stalls = true;
    updater->setAutomaticallyChecksForUpdates(true);
    EXPECT_THAT(pass(24h),
                ElementsAre("update 1.0 1.1 What is new gently", "preparing 1.1", "dismiss"));
    EXPECT_THAT(delegate.errors, IsEmpty());
    EXPECT_EQ(installed(), "1.0");
    EXPECT_TRUE(canCheck.back());
}

} // namespace quillon::test
