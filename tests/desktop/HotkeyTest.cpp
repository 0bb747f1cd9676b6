#include "desktop/Hotkey.h"

#include "support/Await.h"
#include "support/TestComputer.h"

namespace quillon::test {

using enum ShortcutChoice;

TEST(StoreShortcut, IsAnnouncedFromTheEventLoopWhileThereIsAStore) {
    TestComputer computer;
    int pressed = 0;
    QObject::connect(computer.store.get(), &Store::shortcutPressed, computer.store.get(),
                     [&](const std::string& activation) {
                         ++pressed;
                         EXPECT_EQ(activation, "token of the key");
                     });
    computer.store->registerShortcut();
    computer.store->registerShortcut();
    computer.hotKeys.press(PhysicalKey::v);
    EXPECT_EQ(pressed, 0) << "not while the key is handled";
    EXPECT_TRUE(waitUntil([&] { return pressed == 1; }));

    computer.hotKeys.press(PhysicalKey::v);
    computer.restart();
    QCoreApplication::processEvents();
    EXPECT_EQ(pressed, 1);
}

TEST(StoreShortcut, HoldsTheChosenKeyAloneAndTellsWhileItIsTaken) {
    TestComputer computer;
    const auto choose = [&](ShortcutChoice choice) {
        computer.store->changeConfig([&](Config& config) { config.shortcut = choice; });
        computer.store->registerShortcut();
        return !computer.store->shortcutTaken();
    };
    EXPECT_TRUE(choose(ctrlOptV));
    EXPECT_TRUE(choose(ctrlOptV)) << "it holds it itself";
    EXPECT_THAT(computer.hotKeys.registered, ElementsAre(PhysicalKey::v));
    // The keyboard changes.
    computer.hotKeys.tell(PhysicalKey::v, {.kind = HotKeyState::Kind::taken});
    EXPECT_TRUE(computer.store->shortcutTaken());
    computer.hotKeys.tell(PhysicalKey::v, {});
    EXPECT_FALSE(computer.store->shortcutTaken());
    computer.hotKeys.takenByOthers = {PhysicalKey::p};
    EXPECT_FALSE(choose(ctrlOptP));
    EXPECT_THAT(computer.hotKeys.registered, IsEmpty());
    computer.store->changeConfig([](Config& config) { config.shortcut = ctrlOptC; });
    EXPECT_TRUE(computer.store->shortcutTaken()) << "as long as nothing else is registered";

    bool announced = false;
    QObject::connect(computer.store.get(), &Store::objectWillChange, computer.store.get(), [&] {
        announced = true;
        EXPECT_TRUE(computer.store->shortcutTaken()) << "announced too late";
    });
    computer.store->registerShortcut();
    EXPECT_TRUE(announced);
    EXPECT_FALSE(computer.store->shortcutTaken());
    EXPECT_THAT(computer.hotKeys.registered, ElementsAre(PhysicalKey::c));
    EXPECT_EQ(computer.hotKeys.handlersInstalled, 1);
}

} // namespace quillon::test
