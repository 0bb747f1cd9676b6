#include "ui/tray/TrayIcon.h"
#include "support/ConnectedComputer.h"
#include "support/FakeHost.h"
#include "support/XServer.h"

#include <QApplication>
#include <QTemporaryDir>

#include <filesystem>
#include <fstream>

namespace quillon::test {

namespace {

/// The icon's name where it is installed.
const QString installed = QStringLiteral("dev.vostrel.quillon-symbolic");

/// The icon of a program that is set up, and how often it asked for what. Qt decides for all icons
/// of a process which kind of place they go to: here, to hosts on the bus.
struct TrayIconTest : testing::Test {
    ConnectedComputer computer;
    int toggles = 0;
    int panels = 0;
    int settings = 0;
    int quits = 0;
    QRect place;
    TrayIcon icon{*computer.store, computer.clock,
                  TrayActions{.togglePanel =
                                  [this](const QRect& there) {
                                      ++toggles;
                                      place = there;
                                  },
                              .openPanel = [this](const QRect&) { ++panels; },
                              .showSettings = [this] { ++settings; },
                              .quit = [this] { ++quits; }}};

    /// The desktop's panel has had all the time it needs.
    void wait() { computer.clock.advance(10s); }
    bool becomesMissing() {
        return waitUntil([this] {
            wait();
            return icon.missing();
        });
    }

    /// An entry of the icon's menu, which the host gets from Qt.
    static QAction& entry(QAnyStringView label) {
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            for (QAction* action : window->actions())
                if (action->text() == label) return *action;
        }
        throw std::runtime_error{"there is no such entry"};
    }
};

} // namespace

TEST_F(TrayIconTest, IsThereWheneverAHostIs) {
    EXPECT_TRUE(becomesMissing()) << "nobody has a place for it";
    {
        FakeHost host{false};
        wait();
        EXPECT_TRUE(icon.missing()) << "a watcher alone shows nothing";
        host.registerHost();
        ASSERT_TRUE(waitUntil([&] { return host.items() == 1; }));
        EXPECT_FALSE(icon.missing());
        host.click();
        EXPECT_TRUE(waitUntil([this] { return toggles == 1; }));
        EXPECT_TRUE(place.isEmpty()) << "such a host does not tell where the icon is";
    }
    EXPECT_TRUE(becomesMissing());
    FakeHost another{true};
    EXPECT_TRUE(waitUntil([&] { return another.items() == 1; }));
    EXPECT_FALSE(icon.missing());
}

TEST_F(TrayIconTest, HasAMenuForHostsThatOpenNothingElse) {
    FakeHost host{true};
    ASSERT_TRUE(waitUntil([&] { return host.items() == 1; }));
    EXPECT_TRUE(host.getsMenu());
    EXPECT_NE(host.iconName(), installed) << "it is not";
    for (const char* label : {"Open panel", "Settings…", "Quit"})
        entry(label).trigger();
    EXPECT_TRUE(panels == 1 && settings == 1 && quits == 1);

    QAction& send = entry("Send clipboard");
    computer.pasteboard.copy({{"UTF8_STRING", "from the menu"}});
    send.trigger();
    EXPECT_TRUE(waitUntil([this] { return computer.messages("notes").size() == 1; }));
    ASSERT_TRUE(waitUntil([&] { return send.isEnabled(); }));
    computer.store->forgetBot();
    EXPECT_TRUE(waitUntil([&] { return !send.isEnabled(); }));
}

TEST_F(TrayIconTest, IsTheDesktopsToPaintWhereItIsInstalled) {
    const QTemporaryDir data;
    const auto folder =
        std::filesystem::path{data.path().toStdString()} / "icons/hicolor/symbolic/apps";
    std::filesystem::create_directories(folder);
    std::ofstream{folder / (installed.toStdString() + ".svg")} << "<svg/>";
    qputenv("XDG_DATA_HOME", data.path().toUtf8());
    const FakeHost host{true};
    ASSERT_TRUE(waitUntil([&] { return host.items() == 1; }));
    EXPECT_EQ(host.iconName(), installed);
    qunsetenv("XDG_DATA_HOME");
}

} // namespace quillon::test

// The tests run on a desktop of their own: an X server and a session bus, which must be there
// before the application is.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
    const quillon::test::XServer server;
    const quillon::test::SessionBus bus;
    qputenv("DISPLAY", server.display());
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QApplication application{argc, argv};
    return RUN_ALL_TESTS();
}
