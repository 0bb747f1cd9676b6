#pragma once

#include "platform/SessionBus.h"
#include "support/Await.h"
#include "support/TestComputer.h"
#include "support/XServer.h"
#include "ui/tray/TrayIcon.h"

#include <QApplication>

#include <gmock/gmock.h>

namespace quillon::test {

/// Runs the tests on a desktop of the program's own: an X server and a session bus, which must be
/// there before the application is.
inline int runOnDesktop(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
    const XServer server;
    const SessionBus bus;
    qputenv("DISPLAY", server.display());
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QApplication application{argc, argv};
    return RUN_ALL_TESTS();
}

/// The icon of a program on that desktop, and how often it asked for what.
template <typename Computer>
struct TrayTest : testing::Test {
    Computer computer;
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
    void wait() { computer.clock.advance(std::chrono::seconds{10}); }
    bool becomesMissing() {
        return waitUntil([this] {
            wait();
            return icon.missing();
        });
    }
};

} // namespace quillon::test
