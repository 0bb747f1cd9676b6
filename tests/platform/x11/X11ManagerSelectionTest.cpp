#include "platform/linux/x11/X11ManagerSelection.h"

#include "platform/linux/x11/X11Compositor.h"
#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/X11Screen.h"
#include "support/Await.h"
#include "support/XServer.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

namespace quillon::test {

namespace {

/// Another program on the X server, which owns selections without announcing it.
class Owner {
public:
    void own(std::string_view selection) {
        window_ = xcb_generate_id(xcb());
        xcb_create_window(xcb(), XCB_COPY_FROM_PARENT, window_, connection_->root(), 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_set_selection_owner(xcb(), window_, internAtom(xcb(), selection), XCB_CURRENT_TIME);
        xcb_flush(xcb());
    }
    void disown(std::string_view selection) {
        xcb_set_selection_owner(xcb(), XCB_WINDOW_NONE, internAtom(xcb(), selection),
                                XCB_CURRENT_TIME);
        xcb_flush(xcb());
    }
    void destroyWindow() {
        xcb_destroy_window(xcb(), window_);
        xcb_flush(xcb());
    }
    /// Ends the program.
    void quit() { connection_.reset(); }

private:
    xcb_connection_t* xcb() { return connection_->get(); }

    std::unique_ptr<X11Connection> connection_ = X11Connection::open(nullptr);
    xcb_window_t window_ = XCB_WINDOW_NONE;
};

} // namespace

TEST(X11ManagerSelection, FollowsOwnersThatComeGoAndComeBackUnannounced) {
    X11ManagerSelection selection{"_QUILLON_TEST"};
    X11ManagerSelection another{"_QUILLON_TEST"};
    int changes = 0;
    QObject::connect(&selection, &X11ManagerSelection::ownerChanged, [&] { ++changes; });
    const auto becomesOwned = [&](bool owned) {
        const int before = changes;
        return waitUntil([&] {
            return changes > before && selection.isOwned() == owned && another.isOwned() == owned;
        });
    };
    EXPECT_FALSE(selection.isOwned());

    Owner owner;
    owner.own("_QUILLON_TEST_S0");
    EXPECT_TRUE(becomesOwned(true));
    owner.disown("_QUILLON_TEST_S0");
    EXPECT_TRUE(becomesOwned(false));
    owner.own("_QUILLON_TEST_S0");
    EXPECT_TRUE(becomesOwned(true));
    Owner successor;
    successor.own("_QUILLON_TEST_S0");
    EXPECT_TRUE(becomesOwned(true)) << "without a time in which there is none";
    successor.destroyWindow();
    EXPECT_TRUE(becomesOwned(false));
    successor.own("_QUILLON_TEST_S0");
    EXPECT_TRUE(becomesOwned(true));
    successor.quit();
    EXPECT_TRUE(becomesOwned(false));
}

TEST(X11Compositor, IsActiveWhileACompositingManagerRuns) {
    const X11Compositor compositor;
    EXPECT_FALSE(compositor.active());
    Owner manager;
    manager.own("_NET_WM_CM_S0");
    EXPECT_TRUE(waitUntil([&] { return compositor.active(); }));
    EXPECT_TRUE(X11Compositor{}.active()) << "one that was there before";
}

TEST(X11Screen, IsThatOfTheActiveWindowWhereThereIsOne) {
    QWidget window;
    window.setGeometry(20, 20, 100, 100);
    window.show();
    xcb_connection_t* const xcb = qtConnection();
    const auto screenWith = [xcb](std::initializer_list<xcb_window_t> active) {
        xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, rootWindow(xcb),
                            internAtom(xcb, "_NET_ACTIVE_WINDOW"), XCB_ATOM_WINDOW, 32,
                            static_cast<std::uint32_t>(active.size()), active.begin());
        return screenOfActiveWindow();
    };
    const auto id = static_cast<xcb_window_t>(window.winId());
    EXPECT_EQ(screenOfActiveWindow(), nullptr) << "nobody tells";
    EXPECT_EQ(screenWith({XCB_WINDOW_NONE}), nullptr);
    EXPECT_EQ(screenWith({id + 1'000}), nullptr) << "it has gone";
    EXPECT_EQ(screenWith({id}), window.screen());
}

TEST(X11Screen, AWindowStaysOffTheTaskBarEachTimeItShows) {
    QWidget window{nullptr, Qt::Tool | Qt::WindowStaysOnTopHint};
    window.winId();
    for (int showing = 0; showing < 2; ++showing) {
        keepOffTaskBar(*window.windowHandle());
        window.show();
        QCoreApplication::processEvents();
        QProcess xprop;
        xprop.start(QStringLiteral("xprop"),
                    {QStringLiteral("-id"), QString::number(window.winId()),
                     QStringLiteral("_NET_WM_STATE")});
        EXPECT_TRUE(xprop.waitForFinished());
        EXPECT_TRUE(xprop.readAll().contains("SKIP_TASKBAR, _NET_WM_STATE_SKIP_PAGER, "));
        window.hide();
    }
}

} // namespace quillon::test

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
    const quillon::test::XServer server;
    qputenv("DISPLAY", server.display());
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QApplication application{argc, argv};
    return RUN_ALL_TESTS();
}
