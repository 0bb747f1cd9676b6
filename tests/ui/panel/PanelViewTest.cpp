#include "ui/panel/PanelView.h"

#include "support/ConnectedComputer.h"
#include "support/Controls.h"
#include "support/FakeFramework.h"
#include "support/Faults.h"
#include "ui/text/Keycap.h"
#include "ui/text/SymbolView.h"

#include <QMimeData>

#include <ctime>

namespace quillon::test {

namespace {

constexpr const char* sendName = "Send clipboard to phone";

/// A panel in front of the user.
template <typename Computer>
struct PanelOn : testing::Test {
    PanelOn() {
        computer.platform.system.locale = "en_US";
        computer.platform.bundle.info["SUFeedURL"] = "https://example.com/feed.xml";
    }

    void open() {
        panel.emplace(computer.platform, *computer.store, updater,
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
        return controls->find<QAbstractButton>(name);
    }
    void click(const char* name) {
        controls->click(name);
        turn();
    }
    [[nodiscard]] std::string clipLine() const {
        return accessible(*button(sendName)).text(QAccessible::Description).toStdString();
    }
    [[nodiscard]] std::string clipSymbol() const {
        return button(sendName)->template findChild<SymbolView*>()->symbol();
    }

    Computer computer;
    FakeFramework* framework = nullptr;
    Updater updater{computer.platform, *computer.analytics, fakeHooks(framework)};
    std::vector<std::string> log;
    std::optional<PanelView> panel;
    std::optional<Controls> controls;
};

using NewPanel = PanelOn<TestComputer>;
using ReadyPanel = PanelOn<ConnectedComputer>;

Sent sent(std::string title, Date date, std::optional<std::string> error = {}) {
    return {QUuid::createUuid(), "doc", std::move(title), "📄 Files", date, std::move(error)};
}

} // namespace

TEST_F(NewPanel, LeadsIntoTheSetupBeforeItIsDone) {
    computer.store->changeConfig(
        [](Config& config) { config.shortcut = ShortcutChoice::ctrlOptP; });
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
    const std::string warning =
        "⌃⌥V is already used by another app. Pick another shortcut in Settings.";
    const auto keys = [this] {
        QString labels;
        for (const KeyView* key : button(sendName)->findChildren<KeyView*>())
            labels += key->label();
        return labels.toStdString();
    };
    EXPECT_EQ(keys(), "⌃⌥V");
    EXPECT_THAT(seen(), Not(Contains(warning)));
    computer.hotKeys.takenByOthers = {PhysicalKey::v};
    computer.store->registerShortcut();
    turn();
    EXPECT_THAT(seen(), Contains(warning));
    computer.store->changeConfig(
        [](Config& config) { config.shortcut = ShortcutChoice::ctrlOptP; });
    computer.store->registerShortcut();
    turn();
    EXPECT_THAT(seen(), Not(Contains(HasSubstr("already used"))));
    EXPECT_EQ(keys(), "⌃⌥P");
}

TEST_F(ReadyPanel, TellsOfAShortcutThatTheDesktopBindsUntilItsCommandIsCopied) {
    open();
    computer.store->registerShortcut();
    const auto tell = [this](const HotKeyState& state) {
        computer.hotKeys.tell(PhysicalKey::v, state);
        turn();
    };
    const auto showsKeys = [this] { return button(sendName)->findChild<KeyRow*>()->isVisible(); };
    EXPECT_TRUE(showsKeys());
    tell({.way = ShortcutWay::portal, .trigger = "Meta+F9"});
    EXPECT_THAT(seen(), Contains("On this desktop the shortcut is Meta+F9."));
    EXPECT_FALSE(showsKeys()) << "they are others";
    tell({.kind = HotKeyState::Kind::unavailable,
          .way = ShortcutWay::compositorLine,
          .offer = HotKeyState::Offer::copyCommand,
          .command = "bind"});
    const char* const hint = "The shortcut is not set up yet. Settings shows how.";
    EXPECT_THAT(seen(), Contains(hint));
    computer.store->takeShortcutOffer();
    turn();
    EXPECT_THAT(seen(), Not(Contains(hint)));
}

TEST_F(NewPanel, OffersUpdatesWhereTheProgramCanBeUpdated) {
    updater.start();
    open();
    click("Check for Updates…");
    EXPECT_EQ(framework->checks, 1);
    EXPECT_THAT(computer.workspace.log, ElementsAre("activate"));
}

TEST_F(ReadyPanel, SendsTheClipboardAndSaysSo) {
    computer.pasteboard.copy({{"UTF8_STRING", "  milk **and** eggs"}});
    open();
    EXPECT_EQ(clipLine(), "“milk **and** eggs”");
    EXPECT_EQ(clipSymbol(), "text.alignleft");
    EXPECT_THAT(seen(), Contains("Send clipboard"));
    computer.sandbox.failNext(flood(1)); // Telegram makes it wait on the test's clock
    click(sendName);
    ASSERT_TRUE(waitUntil([&] { return computer.store->busy(); }));
    turn();
    EXPECT_THAT(seen(), AllOf(Contains("Sending…"), Not(Contains("Send clipboard"))));
    EXPECT_EQ(clipSymbol(), "arrow.up.circle");
    click(sendName); // does nothing
    ASSERT_TRUE(waitUntil([&] {
        computer.clock.advance(1s);
        return !computer.store->busy();
    }));
    turn();
    EXPECT_THAT(seen(), Contains("Send clipboard"));
    EXPECT_EQ(clipSymbol(), "text.alignleft");
    EXPECT_THAT(computer.messages("notes"), SizeIs(1));
    EXPECT_TRUE(button(sendName)->isEnabled());
}

TEST_F(ReadyPanel, SendsWhatIsDroppedAndLeavesItWhereItWas) {
    open();
    const auto dragged = [this](const QMimeData& data, Qt::DropActions offered) {
        QDragEnterEvent event{{}, offered, &data, Qt::LeftButton, {}};
        if (offered & Qt::MoveAction) event.setDropAction(Qt::MoveAction); // as with Shift
        QCoreApplication::sendEvent(&*panel, &event);
        return event.isAccepted() && event.dropAction() == Qt::CopyAction;
    };
    computer.files.createFolder(computer.path("documents"));
    computer.files.write(computer.path("documents/a b.mov"), "x");
    QMimeData file;
    file.setUrls(
        {QUrl::fromLocalFile(QString::fromStdString(computer.path("documents/a b.mov").native()))});
    QMimeData link;
    link.setUrls({QUrl{QStringLiteral("https://example.com/a")}});
    QMimeData color;
    color.setColorData(QColor{Qt::red});
    EXPECT_FALSE(dragged(color, Qt::CopyAction));
    EXPECT_FALSE(dragged(file, Qt::MoveAction));
    for (const auto& [data, topic] : {std::pair{&file, "videos"}, std::pair{&link, "notes"}}) {
        ASSERT_TRUE(dragged(*data, Qt::CopyAction | Qt::MoveAction));
        EXPECT_THAT(seen(), Contains("Drop to send"));
        QDropEvent drop{{}, Qt::CopyAction | Qt::MoveAction, data, Qt::LeftButton, {}};
        drop.setDropAction(Qt::MoveAction);
        QCoreApplication::sendEvent(&*panel, &drop);
        EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
        EXPECT_TRUE(waitUntil([&] { return computer.messages(topic).size() == 1; }));
        EXPECT_TRUE(waitUntil([&] { return !computer.store->busy(); }));
    }
    const auto both = AllOf(Contains("Send clipboard"), Contains("a b.mov"));
    EXPECT_TRUE(waitUntil([&] { return testing::Value(seen(), both); }));
}

TEST_F(ReadyPanel, FollowsAKeyringThatIsNotThereOrLocked) {
    const std::string silent = "Your keyring doesn't answer. Start or unlock it and try again.";
    computer.secrets.available = false;
    computer.restart();
    open();
    EXPECT_THAT(seen(), AllOf(Contains(silent), Not(Contains("Not set up yet"))));
    computer.secrets.available = true;
    computer.secrets.locked = true;
    click(sendName);
    EXPECT_THAT(seen(), Contains("Your keyring is locked. Unlock it and try again."));
    computer.secrets.locked = false;
    computer.secrets.changed();
    turn();
    EXPECT_THAT(seen(), Not(Contains(HasSubstr("keyring"))));
}

TEST_F(ReadyPanel, NamesTheGroupItIsConnectedTo) {
    open();
    const QSize before = panel->sizeHint();
    const std::string endless(400, 'W');
    const std::pair<std::optional<std::string>, std::string> cases[] = {
        {"Anna & **I**", "Connected · Anna & **I**"},
        {std::nullopt, "Connected · your group"},
        {endless, "Connected · " + endless},
    };
    for (const auto& each : cases) {
        computer.store->changeConfig([&](Config& config) { config.chatTitle = each.first; });
        turn();
        EXPECT_THAT(seen(), Contains(each.second));
    }
    computer.pasteboard.copy({{"UTF8_STRING", QByteArray(20'000'000, 'W')}});
    computer.clock.advance(1s);
    // Of the processor, since other programs may keep it waiting. A frame or two is usual.
    std::clock_t longest = 0;
    while (clipLine().size() < 1'000) {
        const std::clock_t start = std::clock();
        QCoreApplication::processEvents();
        panel->grab();
        longest = std::max(longest, std::clock() - start);
    }
    EXPECT_LT(longest, CLOCKS_PER_SEC) << "it stands still";
    EXPECT_LT(clipLine().size(), 1'100U);
    EXPECT_EQ(panel->sizeHint(), before) << "texts of any length leave it as wide as it was";
}

TEST_F(ReadyPanel, LooksAtTheClipboardOnceASecondAndOnlyWhileShown) {
    open();
    EXPECT_EQ(clipSymbol(), "clipboard") << "it is empty";
    computer.pasteboard.copy({{"UTF8_STRING", "two"}});
    computer.clock.advance(999ms);
    turn();
    EXPECT_EQ(clipSymbol(), "clipboard");
    computer.clock.advance(1ms);
    turn();
    EXPECT_EQ(clipLine(), "“two”");

    const int reads = computer.pasteboard.reads["UTF8_STRING"];
    computer.clock.advance(10s);
    turn();
    EXPECT_EQ(computer.pasteboard.reads["UTF8_STRING"], reads) << "nothing new was copied";
    panel->hide();
    EXPECT_EQ(computer.clock.pending(), 0);
    computer.pasteboard.copy({{"UTF8_STRING", "three"}});
    computer.clock.advance(10s);
    turn();
    panel->show();
    turn();
    EXPECT_EQ(clipLine(), "“three”");

    // A program that hangs: the panel goes away before the answer comes.
    computer.pasteboard.hesitates = true;
    computer.pasteboard.copy({{"UTF8_STRING", "four"}});
    computer.clock.advance(3s);
    panel.reset();
    computer.pasteboard.giveUp();
    turn();
}

TEST_F(ReadyPanel, TakesTheLastSendBack) {
    computer.send({{"UTF8_STRING", "earlier"}});
    computer.send({{"UTF8_STRING", QByteArray(4'000, 'W')}});
    open();
    EXPECT_TRUE(button("Undo")) << "for assistive technology it is always there";
    EXPECT_EQ(controls->opacity("Undo"), 0);
    button("Undo")->setFocus(Qt::TabFocusReason);
    turn();
    EXPECT_EQ(controls->opacity("Undo"), 1);
    EXPECT_EQ(accessible(*button("Undo")).text(QAccessible::Description).toStdString(),
              "Deletes all 2 messages of the last send");
    EXPECT_TRUE(accessible(*button("Undo")).parent()->role() == QAccessible::ListItem);
    click("Undo");
    ASSERT_TRUE(waitUntil([&] { return computer.store->history().front().takenBack; }));
    turn();
    EXPECT_FALSE(button("Undo"));
    EXPECT_TRUE(button(sendName)->hasFocus()) << "it stays in the panel's main part";
    EXPECT_THAT(seen(), Contains(EndsWith("W, 📝 Notes & text · taken back, Taken back")));
    EXPECT_THAT(seen(), Contains("earlier, 📝 Notes & text · just now, Sent"));
}

TEST_F(ReadyPanel, ListsTheFiveNewestWithTheirAge) {
    const Date now = computer.clock.now();
    std::vector<Sent> history{sent("new.pdf", now - 59s), sent("minute.pdf", now - 60s),
                              sent("**bad**.pdf", now - 1h, "The **file** is too big.")};
    for (const char* const name : {"4", "5", "6", "7"})
        history.push_back(sent(name, now - 48h));
    computer.setContent("history.json", encodeHistory(history));
    computer.restart();
    open();
    EXPECT_THAT(seen(), AllOf(Contains("new.pdf, 📄 Files · just now, Sent"),
                              Contains("minute.pdf, 📄 Files · 1 min. ago, Sent"),
                              Contains("**bad**.pdf, The **file** is too big., Not sent"),
                              Contains("5, 📄 Files · 2 days ago, Sent")));
    EXPECT_THAT(seen(), AllOf(Not(Contains("6")), Not(Contains("Nothing sent yet."))));
    computer.clock.advance(1s);
    turn();
    EXPECT_THAT(seen(), Contains("new.pdf, 📄 Files · 1 min. ago, Sent"));
}

} // namespace quillon::test
