#include "ui/settings/SettingsView.h"

#include "support/ConnectedComputer.h"
#include "support/Controls.h"
#include "support/FakeFramework.h"
#include "support/Faults.h"
#include "ui/controls/Switch.h"
#include "ui/settings/PositionCard.h"
#include "ui/settings/UninstallSheet.h"
#include "ui/theme/Motion.h"

#include <QClipboard>
#include <QLineEdit>
#include <QTabBar>

namespace quillon::test {

/// The settings in a window, over a store that has gone through its setup.
struct SettingsTest : testing::Test {
    SettingsTest() { setAnimationsEnabled(false); }
    ~SettingsTest() override { setAnimationsEnabled(std::nullopt); }

    static void turn() { QCoreApplication::processEvents(); }
    void show(const char* tab) {
        view.setTab(QString::fromUtf8(tab));
        turn();
    }
    void change(const std::function<void(Config&)>& how) const {
        computer.store->changeConfig(how);
        turn();
    }
    [[nodiscard]] bool shows(const char* name) const { return controls.shows(name); }
    [[nodiscard]] bool on(const char* name) const { return controls.get<Switch>(name).isChecked(); }
    [[nodiscard]] const Config& config() const { return computer.store->config(); }

    static QCoro::Task<std::vector<std::string>> look(std::vector<std::string> found) {
        co_return found;
    }

    ConnectedComputer computer;
    std::vector<std::string> troubles;
    FakeFramework* framework = nullptr;
    Updater updater{computer.platform, *computer.analytics, fakeHooks(framework)};
    int uninstalls = 0;
    SettingsView view{*computer.store, updater,
                      SettingsActions{.showBanner =
                                          [this](BannerMessage message) {
                                              computer.banner.show(std::move(message));
                                          },
                                      .uninstall = [this]() -> QCoro::Task<> {
                                          ++uninstalls;
                                          co_return;
                                      },
                                      .troubles = [this] { return look(troubles); }},
                      QStringLiteral("setup")};
    Controls controls{view};
};

TEST_F(SettingsTest, ReportsTheHeightOfEachTab) {
    std::vector<int> reported;
    QObject::connect(&view, &SettingsView::fittingHeightChanged, &view,
                     [&](int height) { reported.push_back(height); });
    auto& tabs = *view.findChild<QTabBar*>();
    EXPECT_TRUE(shows("Step 1: Create your bot"));
    tabs.setFocus();
    QTest::keyClick(&tabs, Qt::Key_Right);
    turn();
    EXPECT_EQ(view.tab(), QStringLiteral("topics"));
    EXPECT_FALSE(shows("Step 1: Create your bot"));
    ASSERT_THAT(reported, SizeIs(1));
    EXPECT_EQ(reported.back(), view.fittingHeight());
    // One more topic makes the tab higher, without anybody's asking.
    change([](Config& config) { config.topics.push_back({"links", "Links", 0xFFD67E, 9}); });
    ASSERT_TRUE(waitUntil([&] { return reported.size() > 1; }));
    EXPECT_GT(reported[1], reported[0]);
    show("nowhere");
    EXPECT_EQ(view.tab(), QStringLiteral("topics"));
}

TEST_F(SettingsTest, TellsWhatIsWrongUntilItIsMended) {
    const auto comeBack = [this] {
        view.hide();
        view.show();
        turn();
    };
    const int height = view.fittingHeight();
    troubles = {"Keyring: it is locked. <b>Unlock</b> it.", "b", "c", "d", "e"};
    comeBack();
    EXPECT_TRUE(shows("Keyring: it is locked. <b>Unlock</b> it."));
    EXPECT_TRUE(shows("c"));
    EXPECT_FALSE(shows("d"));
    EXPECT_TRUE(shows("2 more: quillon doctor"));
    EXPECT_GT(view.fittingHeight(), height);
    troubles = {"Keyring: it is locked. <b>Unlock</b> it."};
    QEvent activation{QEvent::WindowActivate}; // which Qt passes on from the window
    QCoreApplication::sendEvent(&view, &activation);
    turn();
    EXPECT_FALSE(shows("c"));
    troubles.clear();
    comeBack();
    EXPECT_FALSE(shows("Keyring: it is locked. <b>Unlock</b> it."));
    EXPECT_EQ(view.fittingHeight(), height);
}

TEST_F(SettingsTest, RegistersThePickedShortcutAndTellsOfOneThatIsTaken) {
    show("general");
    computer.hotKeys.takenByOthers = {PhysicalKey::v};
    controls.click("Control Alt P");
    EXPECT_EQ(config().shortcut, ShortcutChoice::ctrlOptP);
    EXPECT_THAT(computer.hotKeys.registered, ElementsAre(PhysicalKey::p));
    EXPECT_FALSE(shows("Another app already uses Control Alt P. Pick another one."));
    controls.click("Control Alt V");
    turn();
    EXPECT_TRUE(shows("Another app already uses Control Alt V. Pick another one."));
}

TEST_F(SettingsTest, TellsWhatBecomesOfAShortcutThatTheDesktopBindsAndWhatElseThereIs) {
    using enum HotKeyState::Kind;
    using Offer = HotKeyState::Offer;
    show("general");
    computer.store->registerShortcut();
    const auto tell = [&](const HotKeyState& state) {
        computer.hotKeys.tell(PhysicalKey::v, state);
        turn();
    };
    tell({.kind = asking, .way = ShortcutWay::portal});
    EXPECT_TRUE(shows("Your desktop is setting up Control Alt V. If it asks you, answer there."));
    tell({.way = ShortcutWay::portal, .offer = Offer::configure, .trigger = "<b>F9</b> 100%1"});
    EXPECT_TRUE(shows("On this desktop the shortcut is <b>F9</b> 100%1."));
    const std::tuple<Offer, HotKeyState::Kind, const char*> buttons[]{
        {Offer::configure, unassigned, "Choose keys…"},
        {Offer::askAgain, refused, "Ask again"},
        {Offer::addBinding, unavailable, "Add the shortcut"}};
    for (const auto& [offer, kind, name] : buttons) {
        tell({.kind = kind, .way = ShortcutWay::gnomeBinding, .offer = offer});
        controls.click(name);
    }
    EXPECT_EQ(computer.hotKeys.offersTaken, 3);
    EXPECT_FALSE(shows("Command for the shortcut"));

    const std::string line = "bindsym Ctrl+Alt+v exec /usr/bin/quillon send";
    tell({.kind = unavailable,
          .way = ShortcutWay::compositorLine,
          .offer = Offer::copyCommand,
          .command = line,
          .place = "~/.config/sway/config"});
    EXPECT_TRUE(shows("Your desktop keeps shortcuts in a file of its own. For Control Alt V, add "
                      "this line to ~/.config/sway/config:"));
    EXPECT_TRUE(shows("Command for the shortcut"));
    EXPECT_FALSE(computer.store->shortcutCommandCopied());
    controls.click("Copy");
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), line);
    EXPECT_TRUE(computer.store->shortcutCommandCopied());
    tell({});
    EXPECT_FALSE(shows("Command for the shortcut"));
}

TEST_F(SettingsTest, SwitchesWhatItSays) {
    show("general");
    const std::vector<std::pair<const char*, bool Config::*>> table{
        {"Play a sound", &Config::playSound}, {"Show a banner", &Config::showBanner}};
    for (const auto& [name, field] : table) {
        EXPECT_TRUE(on(name)) << name;
        controls.click(name);
        EXPECT_FALSE(config().*field) << name;
        change([field = field](Config& config) { config.*field = true; });
        EXPECT_TRUE(on(name)) << name;
    }
    EXPECT_THAT(computer.newEvents(), SizeIs(4));

    const char* login = "Open Quillon when I log in";
    controls.click(login);
    EXPECT_TRUE(computer.store->launchAtLogin());
    EXPECT_TRUE(on(login));
    computer.loginItem.refuses = true;
    controls.click(login);
    turn();
    EXPECT_TRUE(on(login)) << "shows what is, not what was wanted";
}

TEST_F(SettingsTest, PicksTheBannersPlace) {
    show("general");
    const auto selected = [&] {
        std::vector<std::string> names;
        for (const PositionCard* card : view.findChildren<PositionCard*>()) {
            if (card->selected().value_or(false))
                names.push_back(card->accessibleName().toStdString());
        }
        return names;
    };
    EXPECT_THAT(selected(), ElementsAre("Banner in the top"));
    controls.click("Banner in the bottom");
    EXPECT_EQ(config().bannerPosition, BannerPosition::bottom);
    EXPECT_THAT(selected(), ElementsAre("Banner in the bottom"));
    const BannerMessage preview{.text = "Sent to 📝 Notes & text",
                                .symbol = "checkmark.circle.fill",
                                .position = BannerPosition::bottom};
    EXPECT_THAT(computer.banner.shown, ElementsAre(preview));
}

TEST_F(SettingsTest, HasNoUpdatesWithoutAFramework) {
    show("general");
    const char* automatic = "Check for updates automatically";
    EXPECT_TRUE(shows("Version 1.0"));
    EXPECT_FALSE(controls.enabled("Check now"));
    controls.click(automatic);
    turn();
    EXPECT_FALSE(on(automatic));

    computer.platform.bundle.info["SUFeedURL"] = "https://example.com/feed.xml";
    updater.start();
    ASSERT_TRUE(waitUntil([&] { return controls.enabled("Check now"); }));
    EXPECT_TRUE(on(automatic));
    controls.click(automatic);
    turn();
    EXPECT_FALSE(framework->automatic);
    EXPECT_FALSE(on(automatic));
    controls.click("Check now");
    EXPECT_EQ(framework->checks, 1);
    EXPECT_THAT(computer.workspace.log, ElementsAre("activate"));
}

TEST_F(SettingsTest, TellsWhatItIsConnectedTo) {
    show("general");
    change([](Config& config) { config.chatTitle = "Ours"; });
    EXPECT_TRUE(shows("@quillon_demo_bot"));
    EXPECT_TRUE(shows("Ours"));
    change([](Config& config) { config.botName.reset(); });
    EXPECT_TRUE(shows("@connected"));
    controls.click("Disconnect this Mac");
    EXPECT_FALSE(computer.store->tokenSaved());
    EXPECT_TRUE(shows("Not connected"));
    EXPECT_TRUE(shows("Not found yet"));
    EXPECT_FALSE(shows("Disconnect this Mac"));
}

TEST_F(SettingsTest, GivesTopicsTheirNames) {
    show("topics");
    change([](Config& config) { config.topics[2].key = "links"; });
    const char* save = "Save names to Telegram";
    EXPECT_FALSE(controls.enabled(save));
    EXPECT_FALSE(shows("Finish setup first"));
    EXPECT_TRUE(shows("copied text"));
    EXPECT_FALSE(shows("any other file"));
    EXPECT_EQ(controls.get<QLineEdit>("links").placeholderText(), QStringLiteral("links"));

    auto& name = controls.get<QLineEdit>("Pictures");
    name.selectAll();
    QTest::keyClicks(&name, QStringLiteral("Snaps"));
    // A change from elsewhere, and the redraw that it causes, leave typing alone.
    name.setCursorPosition(2);
    change([](Config& config) { config.playSound = false; });
    QTest::keyClicks(&name, QStringLiteral("i"));
    turn();
    EXPECT_EQ(config().topics[1].name, "Sniaps");
    EXPECT_EQ(name.cursorPosition(), 3);

    computer.sandbox.failNext(refusal("editForumTopic", 400, "Bad Request: not enough rights"));
    controls.click(save);
    ASSERT_TRUE(waitUntil([&] { return shows("Bad Request: not enough rights"); }));
    EXPECT_TRUE(controls.enabled(save));
    controls.click(save);
    ASSERT_TRUE(waitUntil([&] { return shows("Saved to Telegram."); }));
    EXPECT_FALSE(controls.enabled(save));

    QTest::keyClicks(&name, QStringLiteral("!"));
    turn();
    EXPECT_FALSE(shows("Saved to Telegram."));
    EXPECT_TRUE(controls.enabled(save));
    change([](Config& config) { config.topics[0].threadId.reset(); });
    EXPECT_FALSE(controls.enabled(save));
    EXPECT_TRUE(shows("Finish setup first"));
}

TEST_F(SettingsTest, KeepsANameEditedDuringASaveForTheNext) {
    show("topics");
    auto& name = controls.get<QLineEdit>("Pictures");
    QTest::keyClicks(&name, QStringLiteral("1"));
    turn();
    computer.clear();
    controls.click("Save names to Telegram");
    QTest::keyClicks(&name, QStringLiteral("2"));
    ASSERT_TRUE(waitUntil([&] { return computer.methods().size() == 4; }));
    controls.click("Save names to Telegram");
    ASSERT_TRUE(waitUntil([&] { return shows("Saved to Telegram."); }));
    EXPECT_EQ(computer.methods().size(), 8U);
}

TEST_F(SettingsTest, UninstallsOnReturnAndThenStays) {
    show("general");
    controls.click("Uninstall Quillon…");
    UninstallSheet& sheet = *view.findChild<UninstallSheet*>();
    const Controls inside{sheet};
    QTest::keyClick(&sheet, Qt::Key_Return);
    EXPECT_EQ(uninstalls, 1);
    EXPECT_FALSE(inside.enabled("Cancel"));
    EXPECT_FALSE(inside.enabled("Uninstall"));
    QTest::keyClick(&sheet, Qt::Key_Escape);
    sheet.close();
    turn();
    EXPECT_TRUE(sheet.isVisible());
}

} // namespace quillon::test
