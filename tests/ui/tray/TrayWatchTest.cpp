#include "ui/tray/TrayWatch.h"

#include "platform/linux/x11/X11Connection.h"
#include "support/Await.h"

#include <array>

namespace quillon::test {

namespace {

/// A panel that owns the system tray of the freedesktop System Tray Protocol. Gone with the object.
class FakeTray {
public:
    FakeTray() {
        const xcb_atom_t tray = internAtom(xcb_, "_NET_SYSTEM_TRAY_S0");
        xcb_create_window(xcb_, 0, window_, connection_->root(), 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_set_selection_owner(xcb_, window_, tray, XCB_CURRENT_TIME);
        xcb_flush(xcb_);
    }

    void setColour(const QColor& colour) {
        const QRgba64 rgb = colour.rgba64();
        const std::array<std::uint32_t, 3> text{rgb.red(), rgb.green(), rgb.blue()};
        xcb_change_property(xcb_, XCB_PROP_MODE_REPLACE, window_,
                            internAtom(xcb_, "_NET_SYSTEM_TRAY_COLORS"), XCB_ATOM_CARDINAL, 32,
                            text.size(), text.data());
        xcb_flush(xcb_);
    }

private:
    std::unique_ptr<X11Connection> connection_ = X11Connection::open(nullptr);
    xcb_connection_t* xcb_ = connection_->get();
    xcb_window_t window_ = xcb_generate_id(xcb_);
};

} // namespace

TEST(TrayWatchTest, FollowsTheX11TrayAndItsColour) {
    TrayWatch watch;
    int told = 0;
    QObject::connect(&watch, &TrayWatch::recoloured, &watch, [&] { ++told; });
    for (int round = 0; round < 2; ++round) {
        auto tray = std::make_unique<FakeTray>();
        ASSERT_TRUE(waitUntil([&] { return watch.managed(); }));
        watch.listen();
        EXPECT_EQ(watch.foreground(), std::nullopt);
        for (const QColor& colour : {QColor{Qt::white}, QColor{10, 20, 30}}) {
            const int before = told;
            tray->setColour(colour);
            ASSERT_TRUE(waitUntil([&] { return told > before; }));
            EXPECT_EQ(watch.foreground()->rgb(), colour.rgb());
        }
        tray.reset();
        EXPECT_TRUE(waitUntil([&] { return !watch.managed(); }));
    }
}

} // namespace quillon::test
