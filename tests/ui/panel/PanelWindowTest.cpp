#include "ui/panel/PanelWindow.h"

#include "maintenance/Updater.h"
#include "support/Await.h"
#include "support/FakeCompositor.h"
#include "support/TestComputer.h"
#include "ui/panel/PanelView.h"

#include <QTest>

namespace quillon::test {

struct PanelWindowTest : testing::Test {
    TestComputer computer;
    Updater updater{computer.platform, *computer.analytics, {}};
    FakeCompositor compositor;
    PanelWindow window{compositor, computer.workspace, [this] {
                           return std::make_unique<PanelView>(computer.platform, *computer.store,
                                                              updater, PanelActions{});
                       }};
    const QRect icon{100, 0, 24, 24};
};

TEST_F(PanelWindowTest, ClosesWithItsIconAndWhenSomethingElseTakesTheFocus) {
    window.toggle(icon);
    ASSERT_TRUE(waitUntil([this] { return window.isActiveWindow(); }));
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(waitUntil([this] { return !window.isVisible(); }));
    window.toggle(icon); // the click on the icon that took the focus
    EXPECT_FALSE(window.isVisible());
    window.toggle(icon);
    EXPECT_TRUE(window.isVisible());
    window.toggle(icon); // without taking the focus
    EXPECT_FALSE(window.isVisible());
}

TEST_F(PanelWindowTest, StaysWhileSomethingMayBeDraggedToIt) {
    window.open(icon);
    ASSERT_TRUE(waitUntil([this] { return window.isActiveWindow(); }));
    computer.workspace.pressed = true;
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(waitUntil([&] { return other.isActiveWindow(); }));
    QTest::qWait(120);
    EXPECT_TRUE(window.isVisible());
    computer.workspace.pressed = false;
    EXPECT_TRUE(waitUntil([this] { return !window.isVisible(); }));
}

TEST_F(PanelWindowTest, GrowsWithItsContent) {
    window.open(icon);
    const QRect before = window.geometry();
    computer.hotKeys.takenByOthers = {PhysicalKey::v, PhysicalKey::p, PhysicalKey::c};
    computer.store->registerShortcut();
    ASSERT_TRUE(waitUntil([&] { return window.height() > before.height(); }));
    EXPECT_EQ(window.geometry().topLeft(), before.topLeft());
}

} // namespace quillon::test
