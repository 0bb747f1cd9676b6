#include "platform/linux/x11/X11ManagerSelection.h"

#include "platform/linux/x11/X11Compositor.h"
#include "platform/linux/x11/X11Connection.h"
#include "support/Await.h"
#include "support/XServer.h"

#include <QAbstractNativeEventFilter>
#include <QApplication>

#include <xcb/xfixes.h>

#include <gtest/gtest.h>

#include <set>

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
    void setProperty(std::string_view name, std::string_view value) {
        xcb_change_property(xcb(), XCB_PROP_MODE_REPLACE, window_, internAtom(xcb(), name),
                            XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(value.size()),
                            value.data());
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

/// The selections whose events come through to Qt: of all filters, the one
/// that was installed first is asked last.
class EventsForQt : public QAbstractNativeEventFilter {
public:
    EventsForQt() { qApp->installNativeEventFilter(this); }

    std::set<xcb_atom_t> selections;

private:
    bool nativeEventFilter(const QByteArray& /*type*/, void* message, qintptr*) override {
        const auto* const event = static_cast<const xcb_generic_event_t*>(message);
        const int first = xcb_get_extension_data(qtConnection(), &xcb_xfixes_id)->first_event;
        if ((event->response_type & eventTypeMask) != first + XCB_XFIXES_SELECTION_NOTIFY)
            return false;
        selections.insert(
            reinterpret_cast<const xcb_xfixes_selection_notify_event_t*>(event)->selection);
        return false;
    }
};

EventsForQt& eventsForQt() {
    static EventsForQt events;
    return events;
}

} // namespace

TEST(X11ManagerSelection, FollowsOwnersThatComeGoAndComeBackUnannounced) {
    X11ManagerSelection selection{"_QUILLON_TEST", "_QUILLON_VALUE"};
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

TEST(X11ManagerSelection, FollowsThePropertyOfTheOwnerThatThereIs) {
    Owner first;
    first.own("_QUILLON_TEST_S0");
    X11ManagerSelection selection{"_QUILLON_TEST", "_QUILLON_VALUE"};
    int changes = 0;
    QObject::connect(&selection, &X11ManagerSelection::propertyChanged, [&] { ++changes; });
    Owner second;
    second.own("_QUILLON_TEST_S0");
    for (const char* value : {"one", "two"}) {
        const int before = changes;
        // The window may not be listened to yet.
        ASSERT_TRUE(waitUntil([&] {
            second.setProperty("_QUILLON_VALUE", value);
            return changes > before;
        }));
        EXPECT_EQ(selection.property(1000).bytes, value);
    }
    EXPECT_EQ(selection.property(1000).format, 8);
    EXPECT_EQ(selection.property(1000).type, std::uint32_t{XCB_ATOM_STRING});
}

TEST(X11Compositor, IsActiveWhileACompositingManagerRuns) {
    const X11Compositor compositor;
    EXPECT_FALSE(compositor.active());
    Owner manager;
    manager.own("_NET_WM_CM_S0");
    EXPECT_TRUE(waitUntil([&] { return compositor.active(); }));
    EXPECT_TRUE(X11Compositor{}.active()) << "one that was there before";
    manager.quit();
    EXPECT_TRUE(waitUntil([&] { return !compositor.active(); }));
}

TEST(X11Events, KeepFromQtWhatItWouldTakeForTheCompositingManager) {
    const X11ManagerSelection compositing{"_NET_WM_CM"};
    const X11ManagerSelection other{"_QUILLON_TEST"};
    auto& selections = eventsForQt().selections;
    selections.clear();
    Owner owner;
    for (const char* selection : {"_QUILLON_TEST_S0", "CLIPBOARD", "_NET_WM_CM_S0"})
        owner.own(selection);
    EXPECT_TRUE(waitUntil([&] { return compositing.isOwned(); }));
    EXPECT_TRUE(other.isOwned());
    EXPECT_FALSE(selections.contains(internAtom(qtConnection(), "_QUILLON_TEST_S0")));
    EXPECT_TRUE(selections.contains(internAtom(qtConnection(), "CLIPBOARD")))
        << "Qt asked for these";
    EXPECT_TRUE(selections.contains(internAtom(qtConnection(), "_NET_WM_CM_S0")));
}

} // namespace quillon::test

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
    const quillon::test::XServer server;
    qputenv("DISPLAY", server.display());
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QApplication application{argc, argv};
    quillon::test::eventsForQt();
    return RUN_ALL_TESTS();
}
