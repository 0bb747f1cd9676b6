#include "maintenance/Updater.h"

#include "support/FakeFramework.h"
#include "support/TestComputer.h"

#include <gmock/gmock.h>

namespace quillon::test {

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

/// A program whose launch the test repeats.
struct UpdaterTest : testing::Test {
    UpdaterTest() {
        computer.platform.bundle.info["SUFeedURL"] = "https://example.com/feed.xml";
        hooks.shouldAskToMove = [this] { return shouldAsk; };
        hooks.askToMove = [this]() -> QCoro::Task<bool> {
            declinedWhenAsked = computer.defaults.text("qln.moveDeclined").has_value();
            ++offers;
            co_return true;
        };
        hooks.log = [this](const std::string& line) { log.push_back(line); };
    }

    /// Starts the updater of a program that was just launched.
    void launch(std::string version = "1.0") {
        computer.platform.bundle.info["CFBundleShortVersionString"] = std::move(version);
        updater.emplace(computer.platform, *computer.analytics, hooks);
        updater->start();
        QCoreApplication::processEvents();
    }

    TestComputer computer;
    FakeFramework* framework = nullptr;
    UpdaterHooks hooks = fakeHooks(framework);
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
    EXPECT_EQ(framework, nullptr);
    EXPECT_FALSE(updater->available());
    EXPECT_EQ(updater->controller(), nullptr);
    EXPECT_EQ(computer.defaults.text("qln.lastVersion"), "1.1"); // noted all the same
}

TEST_F(UpdaterTest, LogsAFrameworkThatDoesNotStart) {
    hooks.makeFramework = [] {
        auto made = std::make_unique<FakeFramework>();
        made->failure = UpdateError{"SUSparkleErrorDomain", 1, "The key is no key."};
        return made;
    };
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

    const FakeFramework* const first = framework;
    updater->start();
    EXPECT_EQ(framework, first) << "it starts once";
}

TEST_F(UpdaterTest, RecordsChecksAndComesToTheFrontOnTheNextTurn) {
    launch();
    for (const auto check :
         {UpdateCheck::inBackground, UpdateCheck::byUser, UpdateCheck::forInformation})
        EXPECT_TRUE(framework->delegate->mayPerformUpdateCheck(check));
    framework->delegate->willHandleShowingUpdate();
    EXPECT_THAT(computer.events(), IsEmpty());
    EXPECT_THAT(computer.workspace.log, IsEmpty());
    QCoreApplication::processEvents();
    const std::string manual = R"(update_checked {"how":"manual"})";
    EXPECT_THAT(computer.events(), ElementsAre(R"(update_checked {"how":"auto"})", manual, manual));
    EXPECT_THAT(computer.workspace.log, ElementsAre("activate"));
    EXPECT_FALSE(framework->delegate->willInstallUpdateOnQuit());
    EXPECT_TRUE(framework->delegate->supportsGentleScheduledUpdateReminders());
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
