#include "desktop/Hotkey.h"

#include "support/Await.h"
#include "support/World.h"

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
    World world;
    int pressed = 0;
    QObject::connect(world.store.get(), &Store::shortcutPressed, world.store.get(),
                     [&] { ++pressed; });
    world.store->registerShortcut();
    world.hotKeys.press(PhysicalKey::v);
    EXPECT_TRUE(waitUntil([&] { return pressed == 1; }));

    world.hotKeys.press(PhysicalKey::v);
    world.restart();
    QCoreApplication::processEvents();
    EXPECT_EQ(pressed, 1);
}

TEST(StoreShortcut, TellsThatItIsTakenUntilOneIsFree) {
    World world;
    bool announced = false;
    QObject::connect(world.store.get(), &Store::objectWillChange, world.store.get(), [&] {
        announced = true;
        EXPECT_FALSE(world.store->shortcutTaken()) << "announced too late";
    });
    world.hotKeys.takenByOthers = {PhysicalKey::v};
    world.store->registerShortcut();
    EXPECT_TRUE(announced);
    EXPECT_TRUE(world.store->shortcutTaken());
    world.store->disconnect();
    world.store->changeConfig([](Config& config) { config.shortcut = ctrlOptP; });
    EXPECT_TRUE(world.store->shortcutTaken());
    world.store->registerShortcut();
    EXPECT_FALSE(world.store->shortcutTaken());
    EXPECT_THAT(world.hotKeys.registered, ElementsAre(PhysicalKey::p));
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
        World world;
        world.loginItem.current = each.before;
        world.loginItem.afterRegistering = each.afterRegistering;
        world.loginItem.refuses = each.refuses;
        std::optional<bool> shown;
        QObject::connect(world.store.get(), &Store::objectWillChange, world.store.get(),
                         [&] { shown = world.store->launchAtLogin(); });
        world.store->setLaunchAtLogin(each.set);
        EXPECT_EQ(shown, each.launches) << "what a switch shows then";
        EXPECT_THAT(world.events(),
                    ElementsAre(std::string{"settings_changed {\"setting\":\"launch_at_login\","} +
                                "\"value\":" + (each.set ? "true}" : "false}")));
    }
}

} // namespace quillon::test
