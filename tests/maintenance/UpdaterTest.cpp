#include "maintenance/Updater.h"

#include "support/FakeFramework.h"
#include "support/TestComputer.h"
#include "support/Testing.h"

namespace quillon::test {

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
    std::optional<Updater> updater;
};

TEST_F(UpdaterTest, StaysOffWithoutAnApplicationFolderOrAFeed) {
    computer.platform.bundle.url = "/usr/bin/quillon";
    launch();
    computer.platform.bundle.url = "/home/me/Quillon.app";
    computer.platform.bundle.info.erase("SUFeedURL");
    launch("1.1");
    EXPECT_EQ(framework, nullptr);
    EXPECT_FALSE(updater->available());
    EXPECT_EQ(updater->controller(), nullptr);
    EXPECT_THAT(computer.events(), ElementsAre(R"(updated {"from_version":"1.0"})"));
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
        {ours, 1003, true, 1},
        {ours, 4012, true, 1},
        {ours, 1005, false, 0},
        {ours, 4001, true, 0},
        {"NSCocoaErrorDomain", 1005, true, 0},
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
