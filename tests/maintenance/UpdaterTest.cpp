#include "maintenance/Updater.h"

#include "support/Await.h"
#include "support/TestComputer.h"

#include <gmock/gmock.h>

namespace quillon::test {

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

/// An update framework that the test plays.
class FakeFramework : public UpdateFramework {
public:
    std::optional<UpdateError> failure;
    UpdaterDelegate* delegate = nullptr;
    std::function<void(bool)> canCheck;

    [[nodiscard]] std::optional<UpdateError> start(UpdaterDelegate& told) override {
        delegate = &told;
        return failure;
    }
    void observeCanCheck(std::function<void(bool)> observer) override {
        canCheck = std::move(observer);
        canCheck(true);
    }
    void checkForUpdates() override {}
    [[nodiscard]] bool automaticallyChecksForUpdates() const override { return false; }
    void setAutomaticallyChecksForUpdates(bool /*automatically*/) override {}
};

/// A program whose launch the test repeats.
struct UpdaterTest : testing::Test {
    UpdaterTest() { computer.platform.bundle.info["SUFeedURL"] = "https://example.com/feed.xml"; }

    /// Starts the updater of a program that was just launched.
    Updater& launch(std::string version = "1.0") {
        computer.platform.bundle.info["CFBundleShortVersionString"] = std::move(version);
        updater.reset();
        updater.emplace(
            computer.platform, *computer.analytics,
            UpdaterHooks{.makeFramework =
                             [this] {
                                 auto made = std::make_unique<FakeFramework>();
                                 made->failure = failure;
                                 framework = made.get();
                                 ++frameworks;
                                 return made;
                             },
                         .shouldAskToMove = [this] { return shouldAsk; },
                         .askToMove = [this]() -> QCoro::Task<bool> {
                             declinedWhenAsked =
                                 computer.defaults.text("qln.moveDeclined").has_value();
                             ++offers;
                             co_return true;
                         },
                         .log = [this](const std::string& line) { log.push_back(line); }});
        updater->start();
        QCoreApplication::processEvents();
        return *updater;
    }

    TestComputer computer;
    std::optional<UpdateError> failure;
    FakeFramework* framework = nullptr;
    int frameworks = 0;
    bool shouldAsk = true;
    int offers = 0;
    bool declinedWhenAsked = false;
    std::vector<std::string> log;
    std::optional<Updater> updater;
};

} // namespace

TEST_F(UpdaterTest, RecordsEachChangeOfVersionOnce) {
    launch("1.0");
    EXPECT_THAT(computer.events(), IsEmpty());
    launch("1.0");
    launch("1.1");
    launch("1.1");
    const std::string updated = R"(updated {"from_version":"1.0"})";
    EXPECT_THAT(computer.events(), ElementsAre(updated));
    launch("1.0"); // also the way back is a change
    EXPECT_THAT(computer.events(), ElementsAre(updated, R"(updated {"from_version":"1.1"})"));
}

TEST_F(UpdaterTest, TellsTheVersionWithItsBuildWhereThatDiffers) {
    const std::pair<std::map<std::string, std::string, std::less<>>, std::string> cases[] = {
        {{{"CFBundleShortVersionString", "1.1"}, {"CFBundleVersion", "1.1"}}, "1.1"},
        {{{"CFBundleShortVersionString", "1.1"}, {"CFBundleVersion", "42"}}, "1.1 (42)"},
        {{{"CFBundleShortVersionString", "1.1"}, {"CFBundleVersion", ""}}, "1.1"},
        {{{"CFBundleShortVersionString", "1.1"}}, "1.1"},
        {{{"CFBundleVersion", "42"}}, "dev (42)"},
        {{}, "dev"},
    };
    launch();
    for (const auto& [info, version] : cases) {
        computer.platform.bundle.info = info;
        EXPECT_EQ(updater->version(), version);
    }
}

TEST_F(UpdaterTest, StaysOffWithoutAnApplicationFolderOrAFeed) {
    computer.platform.bundle.url = "/usr/bin/quillon";
    launch();
    computer.platform.bundle.url = "/home/me/Quillon.app";
    computer.platform.bundle.info.erase("SUFeedURL");
    launch("1.1");
    EXPECT_EQ(frameworks, 0);
    EXPECT_FALSE(updater->available());
    EXPECT_EQ(updater->controller(), nullptr);
    EXPECT_EQ(computer.defaults.text("qln.lastVersion"), "1.1"); // noted all the same
}

TEST_F(UpdaterTest, LogsAFrameworkThatDoesNotStart) {
    failure = UpdateError{"SUSparkleErrorDomain", 1, "The key is no key."};
    launch();
    EXPECT_THAT(log, ElementsAre("Quillon: updater didn't start: The key is no key."));
    EXPECT_FALSE(updater->available());
    EXPECT_FALSE(updater->canCheck());
    EXPECT_EQ(updater->controller(), nullptr);
}

TEST_F(UpdaterTest, FollowsWhetherACheckCanStart) {
    launch();
    EXPECT_TRUE(updater->available());
    EXPECT_TRUE(updater->canCheck());
    EXPECT_EQ(updater->controller(), framework);

    std::vector<bool> before;
    QObject::connect(&*updater, &Updater::objectWillChange, &*updater,
                     [&] { before.push_back(updater->canCheck()); });
    framework->canCheck(false);
    EXPECT_TRUE(updater->canCheck()) << "changed before the main queue's turn";
    QCoreApplication::processEvents();
    EXPECT_FALSE(updater->canCheck());
    EXPECT_THAT(before, ElementsAre(true));

    updater->start();
    EXPECT_EQ(frameworks, 1);
}

TEST_F(UpdaterTest, AllowsEachCheckAndRecordsWhatSetItOff) {
    launch();
    for (const auto check :
         {UpdateCheck::inBackground, UpdateCheck::byUser, UpdateCheck::forInformation})
        EXPECT_TRUE(framework->delegate->mayPerformUpdateCheck(check));
    EXPECT_THAT(computer.events(), IsEmpty());
    QCoreApplication::processEvents();
    const std::string manual = R"(update_checked {"how":"manual"})";
    EXPECT_THAT(computer.events(), ElementsAre(R"(update_checked {"how":"auto"})", manual, manual));
    EXPECT_FALSE(framework->delegate->willInstallUpdateOnQuit());
    EXPECT_TRUE(framework->delegate->supportsGentleScheduledUpdateReminders());
}

TEST_F(UpdaterTest, ComesToTheFrontForAnUpdateOnTheNextTurn) {
    launch();
    framework->delegate->willHandleShowingUpdate();
    EXPECT_THAT(computer.workspace.log, IsEmpty());
    QCoreApplication::processEvents();
    EXPECT_THAT(computer.workspace.log, ElementsAre("activate"));
}

TEST_F(UpdaterTest, OffersTheMoveAgainWhenItWouldHaveHelped) {
    struct Case {
        std::string domain;
        int code;
        bool shouldAsk;
        int offers;
    };
    const std::string ours = "SUSparkleErrorDomain";
    const Case cases[] = {
        {ours, 1003, true, 1}, {ours, 1005, true, 1},  {ours, 4000, true, 1},
        {ours, 4012, true, 1}, {ours, 1005, false, 0}, {ours, 1004, true, 0},
        {ours, 4001, true, 0}, {ours, 0, true, 0},     {"NSCocoaErrorDomain", 1005, true, 0},
        {"", 4012, true, 0},
    };
    launch();
    for (const Case& each : cases) {
        offers = 0;
        shouldAsk = each.shouldAsk;
        computer.defaults.setFlag("qln.moveDeclined", true);
        framework->delegate->didAbortWithError({each.domain, each.code, "It failed."});
        computer.clock.advance(499ms);
        EXPECT_EQ(offers, 0) << each.code;
        computer.clock.advance(1ms);
        EXPECT_EQ(offers, each.offers) << each.domain << each.code;
        EXPECT_EQ(computer.defaults.flag("qln.moveDeclined").has_value(), each.offers == 0);
        EXPECT_FALSE(declinedWhenAsked);
    }
}

} // namespace quillon::test
