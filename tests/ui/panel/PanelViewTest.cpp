#include "ui/panel/PanelView.h"

#include "maintenance/Updater.h"
#include "support/ConnectedWorld.h"
#include "support/Controls.h"
#include "support/FakeFramework.h"
#include "support/Faults.h"
#include "ui/text/Keycap.h"
#include "ui/text/SymbolView.h"

#include <gmock/gmock.h>

namespace quillon::test {

namespace {

using namespace std::chrono_literals;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

constexpr const char* sendName = "Send clipboard to phone";

/// A panel in front of the user.
template <typename Computer>
struct PanelOn : testing::Test {
    PanelOn() {
        world.platform.system.locale = "en_US";
        world.platform.bundle.info["SUFeedURL"] = "https://example.com/feed.xml";
    }

    void open() {
        panel.emplace(world.platform, *world.store, updater,
                      PanelActions{.showSettings = [this] { log.emplace_back("settings"); },
                                   .quit = [this] { log.emplace_back("quit"); }});
        controls.emplace(*panel);
        turn();
    }

    static void turn() {
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
    }

    [[nodiscard]] std::vector<std::string> seen() const { return controls->seen(); }
    [[nodiscard]] QAbstractButton* button(const char* name) const {
        return controls->find<QAbstractButton>(QString::fromUtf8(name));
    }
    void click(const char* name) {
        controls->click(QString::fromUtf8(name));
        turn();
    }
    [[nodiscard]] std::string clipLine() const {
        return Controls::nameOf(button(sendName), QAccessible::Description).toStdString();
    }
    [[nodiscard]] std::string clipSymbol() const {
        return button(sendName)->template findChild<SymbolView*>()->symbol();
    }

    Computer world;
    FakeFramework* framework = nullptr;
    Updater updater{world.platform, *world.analytics, fakeHooks(framework)};
    std::vector<std::string> log;
    std::optional<PanelView> panel;
    std::optional<Controls> controls;
};

using NewPanel = PanelOn<World>;
using ReadyPanel = PanelOn<ConnectedWorld>;

Sent sent(std::string title, Date date, std::optional<std::string> error = {}) {
    return {QUuid::createUuid(), "doc", std::move(title), "📄 Files", date, std::move(error)};
}

} // namespace

TEST_F(NewPanel, LeadsIntoTheSetupBeforeItIsDone) {
    world.store->changeConfig([](Config& config) { config.shortcut = ShortcutChoice::ctrlOptP; });
    open();
    EXPECT_THAT(seen(), AllOf(Contains("Not set up yet"), Contains("Connect your phone"),
                              Contains("A two-minute setup with your own Telegram bot. Then copy "
                                       "anything and press ⌃⌥P."),
                              Contains("Recent"), Contains("Nothing sent yet.")));
    EXPECT_FALSE(button(sendName));
    EXPECT_FALSE(button("Check for Updates…")) << "there is no updater";
    click("Start setup");
    click("Settings…");
    click("Quit");
    EXPECT_THAT(log, ElementsAre("settings", "settings", "quit"));
}

TEST_F(ReadyPanel, ShowsTheShortcutAndWarnsWhileAnotherProgramHasIt) {
    open();
    const auto keys = [this] {
        QString labels;
        for (const KeyView* key : button(sendName)->findChildren<KeyView*>())
            labels += key->label();
        return labels.toStdString();
    };
    EXPECT_EQ(keys(), "⌃⌥V");
    const std::string warning =
        "⌃⌥V is already used by another app. Pick another shortcut in Settings.";
    EXPECT_THAT(seen(), Not(Contains(warning)));
    for (const PhysicalKey key : {PhysicalKey::v, PhysicalKey::p, PhysicalKey::c})
        world.hotKeys.takenByOthers.insert(key);
    world.store->registerShortcut();
    turn();
    EXPECT_THAT(seen(), Contains(warning));
    world.hotKeys.takenByOthers.clear();
    world.store->changeConfig([](Config& config) { config.shortcut = ShortcutChoice::ctrlOptP; });
    world.store->registerShortcut();
    turn();
    EXPECT_THAT(seen(), Not(Contains(testing::HasSubstr("already used"))));
    EXPECT_EQ(keys(), "⌃⌥P");
}

TEST_F(NewPanel, OffersUpdatesWhereTheProgramCanBeUpdated) {
    updater.start();
    open();
    click("Check for Updates…");
    EXPECT_EQ(framework->checks, 1);
    EXPECT_THAT(world.workspace.log, ElementsAre("activate"));
    framework->canCheck(false);
    turn();
    click("Check for Updates…");
    EXPECT_FALSE(button("Check for Updates…")->isEnabled());
    EXPECT_EQ(framework->checks, 1);
}

TEST_F(ReadyPanel, SendsTheClipboardAndSaysSo) {
    open();
    ASSERT_TRUE(button(sendName));
    EXPECT_EQ(clipSymbol(), "clipboard");
    world.pasteboard.copy({{"UTF8_STRING", "  milk **and** eggs"}});
    world.clock.advance(1s);
    turn();
    EXPECT_EQ(clipLine(), "“milk **and** eggs”");
    EXPECT_EQ(clipSymbol(), "text.alignleft");
    EXPECT_THAT(seen(), Contains("Send clipboard"));
    world.sandbox.failNext(flood(1)); // Telegram makes it wait on the test's clock
    click(sendName);
    ASSERT_TRUE(waitUntil([&] { return world.store->busy(); }));
    turn();
    EXPECT_THAT(seen(), AllOf(Contains("Sending…"), Not(Contains("Send clipboard"))));
    EXPECT_EQ(clipSymbol(), "arrow.up.circle");
    click(sendName); // does nothing
    ASSERT_TRUE(waitUntil([&] { return !world.sandbox.requests().empty(); }));
    ASSERT_TRUE(waitUntil([&] {
        world.clock.advance(1s);
        return !world.store->busy();
    }));
    turn();
    EXPECT_THAT(seen(), Contains("Send clipboard"));
    EXPECT_EQ(clipSymbol(), "text.alignleft");
    EXPECT_THAT(world.messages("notes"), testing::SizeIs(1));
    EXPECT_TRUE(button(sendName)->isEnabled());
}

TEST_F(ReadyPanel, NamesTheGroupItIsConnectedTo) {
    open();
    for (const auto& [title, status] :
         {std::pair{std::optional<std::string>{"Anna & **I**"}, "Connected · Anna & **I**"},
          std::pair{std::optional<std::string>{}, "Connected · your group"}}) {
        world.store->changeConfig([&](Config& config) { config.chatTitle = title; });
        turn();
        EXPECT_THAT(seen(), Contains(status));
    }
}

TEST_F(ReadyPanel, LooksAtTheClipboardOnceASecondAndOnlyWhileShown) {
    world.pasteboard.copy({{"UTF8_STRING", "one"}});
    open();
    EXPECT_EQ(clipLine(), "“one”");
    world.pasteboard.copy({{"UTF8_STRING", "two"}});
    world.clock.advance(999ms);
    turn();
    EXPECT_EQ(clipLine(), "“one”");
    world.clock.advance(1ms);
    turn();
    EXPECT_EQ(clipLine(), "“two”");

    const int reads = world.pasteboard.reads["UTF8_STRING"];
    world.clock.advance(10s);
    turn();
    EXPECT_EQ(world.pasteboard.reads["UTF8_STRING"], reads) << "nothing new was copied";
    panel->hide();
    EXPECT_EQ(world.clock.pending(), 0);
    world.pasteboard.copy({{"UTF8_STRING", "three"}});
    world.clock.advance(10s);
    turn();
    panel->show();
    turn();
    EXPECT_EQ(clipLine(), "“three”");

    // A program that hangs: the panel goes away before the answer comes.
    world.pasteboard.hesitates = true;
    world.pasteboard.copy({{"UTF8_STRING", "four"}});
    world.clock.advance(3s);
    panel.reset();
    world.pasteboard.giveUp();
    turn();
}

TEST_F(ReadyPanel, ListsTheFiveNewestWithTheirAge) {
    const Date now = world.clock.now();
    std::vector<Sent> history{sent("new.pdf", now - 59s), sent("minute.pdf", now - 60s),
                              sent("**bad**.pdf", now - 1h, "The **file** is too big.")};
    for (const char* const name : {"4", "5", "6", "7"})
        history.push_back(sent(name, now - 48h));
    world.setContent("history.json", encodeHistory(history));
    world.restart();
    open();
    EXPECT_THAT(seen(), AllOf(Contains("new.pdf, 📄 Files · just now, Sent"),
                              Contains("minute.pdf, 📄 Files · 1 min. ago, Sent"),
                              Contains("**bad**.pdf, The **file** is too big., Not sent"),
                              Contains("5, 📄 Files · 2 days ago, Sent")));
    EXPECT_THAT(seen(), AllOf(Not(Contains("6")), Not(Contains("Nothing sent yet."))));
    world.clock.advance(1s);
    turn();
    EXPECT_THAT(seen(), Contains("new.pdf, 📄 Files · 1 min. ago, Sent"));
}

TEST_F(ReadyPanel, IsWorkedWithTheKeyboardAlone) {
    updater.start();
    open();
    panel->activateWindow();
    panel->focusMainAction();
    turn();
    std::vector<std::string> order;
    for (int i = 0; i < 5; ++i) {
        order.push_back(Controls::nameOf(QApplication::focusWidget()).toStdString());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_THAT(order, ElementsAre(sendName, "Settings…", "Check for Updates…", "Quit", sendName));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_THAT(log, ElementsAre("settings"));
}

TEST_F(ReadyPanel, KeepsItsWidthWhateverTheTextsSay) {
    open();
    const QSize before = panel->sizeHint();
    world.store->changeConfig([](Config& config) { config.chatTitle = std::string(400, 'W'); });
    world.pasteboard.copy({{"UTF8_STRING", QByteArray(5000, 'W')}});
    world.clock.advance(1s);
    turn();
    EXPECT_EQ(panel->sizeHint(), before);
}

} // namespace quillon::test
