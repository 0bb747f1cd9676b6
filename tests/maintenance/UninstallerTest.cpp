#include "maintenance/Uninstaller.h"
#include "support/Await.h"
#include "support/FakeAlerts.h"
#include "support/World.h"

#include <gmock/gmock.h>

#include <fstream>

namespace quillon::test {
namespace {

namespace fs = std::filesystem;
using fs::path;
using Log = std::vector<std::string>;

constexpr const char* identifier = "dev.vostrel.quillon";

class UninstallerTest : public testing::Test {
protected:
    UninstallerTest() { fs::create_directories(bundle); }

    static void fill(const path& folder) {
        fs::create_directories(folder / "inner");
        std::ofstream{folder / "inner/file"} << "x";
    }
    void run() {
        await(uninstaller.run([&] { world.workspace.log.emplace_back("trashed"); }));
    }

    World world;
    FakeAlerts alerts;
    Uninstaller uninstaller{world.platform, *world.store, *world.analytics, alerts};
    const path bundle = world.platform.bundle.url;
    const path home = world.home();
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
    world.secrets.values[{botTokenItem().service, botTokenItem().account}] = "token";
    world.loginItem.current = LoginItem::Status::enabled;
    world.defaults.setFlag("qln.moveDeclined", true);

    run();
    for (const path& each : ours)
        EXPECT_FALSE(fs::exists(fs::symlink_status(each))) << each;
    for (const path& each : theirs)
        EXPECT_TRUE(fs::exists(each / "inner/file")) << each;
    EXPECT_TRUE(world.secrets.values.empty());
    EXPECT_EQ(world.loginItem.current, LoginItem::Status::notRegistered);
    EXPECT_TRUE(world.defaults.values.empty());
    EXPECT_TRUE(alerts.shown.empty());
    EXPECT_EQ(world.workspace.log,
              (Log{"unlist", "trash " + bundle.native(), "trashed", "exit 0"}));
}

TEST_F(UninstallerTest, LeavesNothingThatWritesAFileAgain) {
    world.analytics->track("opened");
    ASSERT_TRUE(fs::exists(world.path("events.json")));
    run();
    world.analytics->track("settings");
    world.store->changeConfig([](Config& config) { config.playSound = !config.playSound; });
    EXPECT_FALSE(fs::exists(world.platform.dataFolder));
}

TEST_F(UninstallerTest, NeverRemovesMoreForAnOddIdentifier) {
    for (const char* odd : {"", ".", "..", "/", "a/b.c", "../..", "a..b", "a.b/", "HTTPStorages",
                            "mozilla", ".config", "dev.", "a b.c", "a.b\n", "d\xc3\xa9v.x"}) {
        world.platform.bundle.info["CFBundleIdentifier"] = odd;
        EXPECT_EQ(uninstaller.folders()[1], home / "cache" / identifier) << odd;
    }
    world.platform.bundle.info.erase("CFBundleIdentifier");
    EXPECT_EQ(uninstaller.folders()[5], home / "state/dev.vostrel.quillon.savedState");
    world.platform.bundle.info["CFBundleIdentifier"] = "org.Example-2.app";
    EXPECT_EQ(uninstaller.folders()[1], home / "cache/org.Example-2.app");
}

TEST_F(UninstallerTest, GoesOnWhateverFailsAndTellsOnlyWhatIsLeftToTheUser) {
    const Alert left{.warning = false,
                     .message = "Quillon is cleaned up",
                     .informativeText = "It couldn't move itself to the Trash. Drag Quillon from "
                                        "Applications to the Trash to finish.",
                     .buttons = {"OK"}};
    world.loginItem.refuses = true;
    world.secrets.available = false;
    world.workspace.trashWorks = false;
    fill(world.platform.dataFolder);
    run();
    EXPECT_FALSE(fs::exists(world.platform.dataFolder));
    EXPECT_EQ(world.workspace.log,
              (Log{"unlist", "trash " + bundle.native(), "activate", "exit 0"}));
    EXPECT_EQ(alerts.shown, std::vector{left});

    // What is no application folder is never thrown away.
    world.workspace.trashWorks = true;
    world.workspace.log.clear();
    world.platform.bundle.url = "/usr/bin/quillon";
    run();
    EXPECT_EQ(world.workspace.log, (Log{"unlist", "activate", "exit 0"}));
    ASSERT_EQ(alerts.shown.size(), 2U);
    EXPECT_THAT(alerts.shown[1].informativeText, testing::HasSubstr("with your package manager"));
}

} // namespace
} // namespace quillon::test
