#include "maintenance/Uninstaller.h"
#include "support/Await.h"
#include "support/FakeAlerts.h"
#include "support/Files.h"
#include "support/TestComputer.h"

namespace quillon::test {

using fs::path;
using Log = std::vector<std::string>;

constexpr const char* identifier = "dev.vostrel.quillon";

struct UninstallerTest : testing::Test {
    UninstallerTest() { fs::create_directories(bundle); }

    static void fill(const path& folder) {
        fs::create_directories(folder / "inner");
        write(folder / "inner/file");
    }
    void run() {
        await(uninstaller.run(
            [&](bool /*tokenRemoved*/) { computer.workspace.log.emplace_back("trashed"); }));
    }
    QCoro::Task<> dropUpdates() {
        computer.workspace.log.emplace_back("drop updates");
        co_return;
    }

    TestComputer computer;
    FakeAlerts alerts;
    Uninstaller uninstaller{computer.platform, *computer.store, *computer.analytics, alerts,
                            [this] { return dropUpdates(); }};
    const path bundle = computer.platform.bundle.url;
    const path home = computer.home();
};

TEST_F(UninstallerTest, RemovesAllThatIsOursAndNothingElse) {
    const std::string id = identifier;
    const std::vector<path> ours{
        home / "share/Quillon",           home / "cache" / id,
        home / "cache/HTTPStorages" / id, home / "cache/HTTPStorages" / (id + ".binarycookies"),
        home / "share/WebKit" / id,       home / "state" / (id + ".savedState"),
    };
    const auto places = uninstaller.folders();
    EXPECT_EQ(std::vector(places.begin(), places.end()), ours);
    for (const path& each : ours)
        fill(each);
    const std::vector<path> theirs{home / "share/Quillon2", home / "cache/HTTPStorages/other",
                                   home / "share/WebKit" / (id + "2"), home / "state/other"};
    for (const path& each : theirs)
        fill(each);
    fs::create_directory_symlink(theirs[0], ours[0] / "link");
    fs::remove_all(ours[1]);
    fs::create_directory_symlink(theirs[1], ours[1]);
    computer.secrets.values[{botTokenItem().service, botTokenItem().account}] = "token";
    computer.loginItem.current = LoginItem::Status::enabled;
    computer.defaults.setFlag("qln.moveDeclined", true);

    run();
    for (const path& each : ours)
        EXPECT_FALSE(fs::exists(fs::symlink_status(each))) << each;
    for (const path& each : theirs)
        EXPECT_TRUE(fs::exists(each / "inner/file")) << each;
    EXPECT_TRUE(computer.secrets.values.empty());
    EXPECT_EQ(computer.loginItem.current, LoginItem::Status::notRegistered);
    EXPECT_TRUE(computer.defaults.values.empty());
    EXPECT_TRUE(alerts.shown.empty());
    EXPECT_EQ(computer.workspace.log, (Log{"drop updates", "unlist", "unbind",
                                           "trash " + bundle.native(), "trashed", "exit 0"}));
}

TEST_F(UninstallerTest, LeavesNothingThatWritesAFileAgain) {
    computer.analytics->track("opened");
    ASSERT_TRUE(fs::exists(computer.path("events.json")));
    run();
    computer.analytics->track("settings");
    computer.store->changeConfig([](Config& config) { config.playSound = false; });
    EXPECT_FALSE(computer.store->config().playSound) << "in memory all goes on";
    EXPECT_EQ(computer.analytics->queue().size(), 1U) << "nothing more is recorded";
    EXPECT_FALSE(fs::exists(computer.platform.dataFolder));
}

TEST_F(UninstallerTest, NeverRemovesMoreForAnOddIdentifier) {
    for (const char* odd : {"", ".", "..", "/", "a/b.c", "../..", "a..b", "a.b/", "HTTPStorages",
                            "mozilla", ".config", "dev.", "a b.c", "a.b\n", "d\xc3\xa9v.x"}) {
        computer.platform.bundle.info["CFBundleIdentifier"] = odd;
        EXPECT_EQ(uninstaller.folders()[1], home / "cache" / identifier) << odd;
    }
    computer.platform.bundle.info.erase("CFBundleIdentifier");
    EXPECT_EQ(uninstaller.folders()[5], home / "state/dev.vostrel.quillon.savedState");
    computer.platform.bundle.info["CFBundleIdentifier"] = "org.Example-2.app";
    EXPECT_EQ(uninstaller.folders()[1], home / "cache/org.Example-2.app");
}

TEST_F(UninstallerTest, GoesOnWhateverFailsAndTellsOnlyWhatIsLeftToTheUser) {
    computer.loginItem.refuses = true;
    computer.secrets.available = false;
    computer.workspace.trashWorks = false;
    fill(computer.platform.dataFolder);
    run();
    EXPECT_FALSE(fs::exists(computer.platform.dataFolder));
    EXPECT_EQ(computer.workspace.log, (Log{"drop updates", "unlist", "unbind",
                                           "trash " + bundle.native(), "activate", "exit 0"}));
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_THAT(alerts.shown[0].informativeText, HasSubstr("Drag Quillon from"));

    // What is no application folder is never thrown away.
    computer.workspace.trashWorks = true;
    computer.workspace.log.clear();
    computer.platform.bundle.url = "/usr/bin/quillon";
    run();
    EXPECT_EQ(computer.workspace.log,
              (Log{"drop updates", "unlist", "unbind", "activate", "exit 0"}));
    ASSERT_EQ(alerts.shown.size(), 2U);
    EXPECT_THAT(alerts.shown[1].informativeText, HasSubstr("with your package manager"));
}

TEST_F(UninstallerTest, DoesNotWaitForEverAtALockedKeyring) {
    computer.secrets.late = true;
    std::optional<bool> removed;
    auto running = uninstaller.run([&](bool tokenRemoved) { removed = tokenRemoved; });
    computer.clock.advance(29s);
    EXPECT_EQ(computer.workspace.log, Log{"drop updates"});
    computer.clock.advance(2s);
    await(std::move(running));
    EXPECT_EQ(computer.workspace.log.back(), "exit 0");
    EXPECT_EQ(removed, false);
}

} // namespace quillon::test
