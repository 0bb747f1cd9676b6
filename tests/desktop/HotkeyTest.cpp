#include "desktop/Hotkey.h"

#include "support/Await.h"
#include "support/TestComputer.h"

#include <gmock/gmock.h>

namespace quillon::test {

namespace {

using enum ShortcutChoice;
using testing::ElementsAre;
using testing::IsEmpty;

class HotkeyTest : public testing::Test {
protected:
    bool choose(ShortcutChoice choice, int factor = 1) {
        return hotkey->registerChoice(choice, [this, factor] { done += factor; });
    }

    FakeHotKeys hotKeys;
    std::unique_ptr<Hotkey> hotkey = std::make_unique<Hotkey>(hotKeys);
    int done = 0;
};

} // namespace

TEST_F(HotkeyTest, HoldsNothingButTheLastChoice) {
    EXPECT_TRUE(choose(ctrlOptV));
    EXPECT_TRUE(choose(ctrlOptV));
    EXPECT_THAT(hotKeys.registered, ElementsAre(PhysicalKey::v));
    hotKeys.takenByOthers = {PhysicalKey::p};
    EXPECT_FALSE(choose(ctrlOptP));
    EXPECT_THAT(hotKeys.registered, IsEmpty());
    EXPECT_TRUE(choose(ctrlOptC));
    EXPECT_THAT(hotKeys.registered, ElementsAre(PhysicalKey::c));
    EXPECT_EQ(hotKeys.handlersInstalled, 1);
}

TEST_F(HotkeyTest, ActsFromTheEventLoopAsLastTold) {
    EXPECT_TRUE(choose(ctrlOptV, 1));
    hotKeys.press(PhysicalKey::v);
    hotKeys.press(PhysicalKey::v);
    EXPECT_EQ(done, 0);
    EXPECT_TRUE(choose(ctrlOptP, 10));
    EXPECT_TRUE(waitUntil([&] { return done == 20; }));

    hotKeys.press(PhysicalKey::p);
    hotkey.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(done, 20);
}

TEST(StoreShortcut, IsAnnouncedEachTimeAndNotByAStoreThatIsGone) {
    TestComputer computer;
    int pressed = 0;
    QObject::connect(computer.store.get(), &Store::shortcutPressed, computer.store.get(),
                     [&] { ++pressed; });
    computer.store->registerShortcut();
    computer.hotKeys.press(PhysicalKey::v);
    EXPECT_TRUE(waitUntil([&] { return pressed == 1; }));

    computer.hotKeys.press(PhysicalKey::v);
    computer.restart();
    QCoreApplication::processEvents();
    EXPECT_EQ(pressed, 1);
}

TEST(StoreShortcut, TellsThatItIsTakenUntilOneIsFree) {
    TestComputer computer;
    bool announced = false;
    QObject::connect(computer.store.get(), &Store::objectWillChange, computer.store.get(), [&] {
        announced = true;
        EXPECT_FALSE(computer.store->shortcutTaken()) << "announced too late";
    });
    computer.hotKeys.takenByOthers = {PhysicalKey::v};
    computer.store->registerShortcut();
    EXPECT_TRUE(announced);
    EXPECT_TRUE(computer.store->shortcutTaken());
    computer.store->disconnect();
    computer.store->changeConfig([](Config& config) { config.shortcut = ctrlOptP; });
    EXPECT_TRUE(computer.store->shortcutTaken());
    computer.store->registerShortcut();
    EXPECT_FALSE(computer.store->shortcutTaken());
    EXPECT_THAT(computer.hotKeys.registered, ElementsAre(PhysicalKey::p));
}

TEST(LaunchAtLogin, IsWhatTheDesktopMakesOfIt) {
    using enum LoginItem::Status;
    struct Case {
        LoginItem::Status before;
        LoginItem::Status afterRegistering;
        bool refuses;
        bool set;
        bool launches;
    };
    constexpr Case cases[]{
        {notRegistered, enabled, false, true, true},
        {notRegistered, requiresApproval, false, true, false},
        {notFound, enabled, true, true, false},
        {enabled, enabled, false, false, false},
        {enabled, enabled, true, false, true},
    };
    for (const Case& each : cases) {
        TestComputer computer;
        computer.loginItem.current = each.before;
        computer.loginItem.afterRegistering = each.afterRegistering;
        computer.loginItem.refuses = each.refuses;
        std::optional<bool> shown;
        QObject::connect(computer.store.get(), &Store::objectWillChange, computer.store.get(),
                         [&] { shown = computer.store->launchAtLogin(); });
        computer.store->setLaunchAtLogin(each.set);
        EXPECT_EQ(shown, each.launches) << "what a switch shows then";
        EXPECT_THAT(computer.events(),
                    ElementsAre(std::string{"settings_changed {\"setting\":\"launch_at_login\","} +
                                "\"value\":" + (each.set ? "true}" : "false}")));
    }
}

} // namespace quillon::test
