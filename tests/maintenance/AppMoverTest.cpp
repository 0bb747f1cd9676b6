#include "maintenance/AppMover.h"
#include "support/Await.h"
#include "support/FakeAlerts.h"
#include "support/Files.h"
#include "support/TestComputer.h"
#include "support/Unprivileged.h"

#include <sys/xattr.h>

namespace quillon::test {
namespace {

using fs::path;
using Log = std::vector<std::string>;

constexpr const char* mark = "user.com.apple.quarantine";

void makeApplication(const path& app, const std::string& program) {
    fs::create_directories(app / "Contents/Linux");
    write(app / "Contents/Linux/quillon", program);
}

std::string program(const path& app) {
    return content(app / "Contents/Linux/quillon");
}

struct AppMoverTest : testing::Test {
    AppMoverTest() { makeApplication(source, "new"); }

    TestComputer computer;
    FakeAlerts alerts;
    AppMover mover{computer.platform, alerts};
    const path source = computer.platform.bundle.url;
    const path shared = computer.platform.folders.applications;
    const path own = computer.home() / "Applications";
};

TEST_F(AppMoverTest, AsksOnlyAnApplicationOutsideOfBothFolders) {
    fs::create_directories(shared / "Utilities");
    fs::create_directories(computer.home() / "Volumes/Big");
    fs::create_directory_symlink(computer.home() / "Volumes/Big", own);
    fs::create_directory_symlink(shared, computer.home() / "Apps");
    const std::pair<path, bool> cases[]{
        {source, true},
        {shared / "Quillon.app", false},
        {own / "Quillon.app", false},
        {computer.home() / "Volumes/Big/Quillon.app", false},
        {computer.home() / "Apps/Quillon.app", false},
        {shared / "Utilities/Quillon.app", true},
        {computer.home() / "build/quillon", false},
    };
    for (const auto& [url, asks] : cases) {
        computer.platform.bundle.url = url;
        EXPECT_EQ(mover.shouldAsk(), asks) << url;
    }
}

TEST_F(AppMoverTest, RemembersThatTheUserDeclined) {
    alerts.answer = 1;
    EXPECT_FALSE(await(mover.ask()));
    ASSERT_EQ(alerts.shown.size(), 1U);
    EXPECT_EQ(alerts.shown[0].buttons, (Log{"Move", "Not now"}));
    EXPECT_EQ(computer.defaults.flag("qln.moveDeclined"), true);
    EXPECT_EQ(computer.workspace.log, Log{"activate"});
    EXPECT_EQ(program(source), "new");
}

TEST_F(AppMoverTest, ReplacesAnOlderCopyAndRelaunches) {
    fs::create_directories(shared);
    const path target = shared / "Quillon.app";
    makeApplication(target, "old");
    // Another copy runs, and something that ran from a place that is gone.
    computer.workspace.running = {source, computer.home() / "gone/Quillon.app"};
    const path inner = source / "Contents/Linux/quillon";
    const bool marked = ::setxattr(source.c_str(), mark, "1", 1, 0) == 0 &&
                        ::setxattr(inner.c_str(), mark, "1", 1, 0) == 0;
    EXPECT_TRUE(await(mover.ask()));
    EXPECT_EQ(computer.workspace.log,
              (Log{"activate", "trash " + target.native(), "list " + target.native(),
                   "open " + target.native(), "terminate"}));
    EXPECT_EQ(computer.loginItem.followed, target / "Contents/Linux/quillon");
    EXPECT_EQ(program(target), "new");
    EXPECT_FALSE(fs::exists(source));
    if (marked) {
        EXPECT_EQ(::getxattr(target.c_str(), mark, nullptr, 0), -1);
        EXPECT_EQ(::getxattr((target / "Contents/Linux/quillon").c_str(), mark, nullptr, 0), -1);
    }
    EXPECT_FALSE(computer.defaults.flag("qln.moveDeclined"));
}

TEST_F(AppMoverTest, CopiesFromAReadOnlyDiskOverALinkAndNotIntoWhatItLeadsTo) {
    const path other = computer.home() / "Elsewhere.app";
    makeApplication(other, "other");
    fs::create_directories(own);
    fs::create_directory_symlink(other, own / "Quillon.app");
    const Mount disk = Mount::readOnly(source.parent_path());
    EXPECT_EQ(await(mover.move()), own / "Quillon.app");
    EXPECT_FALSE(fs::is_symlink(own / "Quillon.app"));
    EXPECT_EQ(program(own / "Quillon.app"), "new");
    EXPECT_EQ(program(other), "other");
    if (disk) { // only root mounts
        EXPECT_EQ(program(source), "new");
    }
}

TEST_F(AppMoverTest, TellsWhyItCouldNotMove) {
    const path hidden = computer.home() / "AppTranslocation/4F/d/Quillon.app";
    const path mine = computer.home() / "Mine";
    makeApplication(hidden, "new");
    fs::create_directory_symlink(own, mine);
    struct Case {
        const char* told;
        path url;
        bool older; ///< lies at the destination
        bool trashWorks;
        std::vector<path> running;
    };
    const Case cases[]{
        {"hidden copy", hidden, true, true, {}},
        {"An older Quillon is open", source, true, true, {source, mine / "Quillon.app"}},
        {"Couldn't replace the older", source, true, false, {}},
        {"didn't allow the move", computer.home() / "Ejected/Quillon.app", true, true, {}},
        {"didn't allow Quillon to write", source, false, true, {}},
    };
    for (const Case& each : cases) {
        fs::remove_all(own);
        if (each.older) {
            makeApplication(own / "Quillon.app", "old");
        } else {
            write(own, "no folder");
        }
        computer.platform.bundle.url = each.url;
        computer.workspace.running = each.running;
        computer.workspace.trashWorks = each.trashWorks;
        computer.workspace.log.clear();
        alerts.shown.clear();
        EXPECT_FALSE(await(mover.ask()));
        ASSERT_EQ(alerts.shown.size(), 2U);
        EXPECT_THAT(alerts.shown[1].informativeText, HasSubstr(each.told));
        EXPECT_FALSE(computer.defaults.flag("qln.moveDeclined"));
        EXPECT_EQ(program(source), "new");
        EXPECT_EQ(program(own / "Quillon.app"), each.older ? "old" : "");
        EXPECT_EQ(computer.workspace.log.size(), each.trashWorks ? 1U : 2U) << "what is trashed";
        EXPECT_TRUE(computer.loginItem.followed.empty());
    }
}

} // namespace
} // namespace quillon::test
