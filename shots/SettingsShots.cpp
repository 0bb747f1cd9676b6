// Takes pictures of the settings window in every condition.
#include "doctor/Rules.h"
#include "maintenance/Updater.h"
#include "shots/Shots.h"
#include "support/ConnectedComputer.h"
#include "support/Controls.h"
#include "support/FakeFramework.h"
#include "support/Faults.h"
#include "ui/settings/SettingsView.h"
#include "ui/settings/UninstallSheet.h"

#include <QLineEdit>

#include <map>

namespace {

using namespace quillon;
using namespace quillon::test;

constexpr const char* longName =
    "The outbox of everybody in the family who has a phone and a computer";

constexpr const char* noRights = "Bad Request: not enough rights to manage topics";

/// The settings window over a store in a certain state of the setup.
struct Stage {
    Stage(const char* tab, const Config& config, bool token = true) {
        computer.sandbox.userSays(computer.sandbox.addGroup(), "hi");
        computer.setContent("config.json", encodeConfig(config));
        const KeychainItem& item = botTokenItem();
        if (token) computer.secrets.values[{item.service, item.account}] = BotComputer::token;
        computer.restart();
        computer.platform.bundle.info["SUFeedURL"] = "https://example.com/feed.xml";
        updater.emplace(
            computer.platform, *computer.analytics,
            UpdaterHooks{.makeFramework = [] { return std::make_unique<FakeFramework>(); },
                         .shouldAskToMove = [] { return false; },
                         .askToMove = {},
                         .log = [](const std::string&) {}});
        view.emplace(*computer.store, *updater,
                     SettingsActions{.showBanner = [](auto&&...) {},
                                     .uninstall = []() -> QCoro::Task<> { co_return; },
                                     .troubles = [this] { return look(troubles); }},
                     QString::fromLatin1(tab));
        controls.emplace(*view);
    }

    void click(const char* name) const { controls->click(shown(name)); }
    void open(int step, const char* title) const {
        controls->click(shown("Step %1: %2").arg(step).arg(shown(title)));
    }
    void type(const char* field, const char* text) const {
        auto& edit = controls->get<QLineEdit>(shown(field));
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, QString::fromUtf8(text));
        QCoreApplication::processEvents(); // so that controls follow the text
    }
    /// Waits until a text shows: one of the program, or one of Telegram, which is not translated.
    void awaitText(const char* text) const {
        until([&] {
            return controls->shows(shown(text)) || controls->shows(QString::fromUtf8(text));
        });
    }

    /// Shows what is wrong when the window comes to the front again.
    void tellTroubles(const Facts& facts) {
        troubles = failures(findings(facts, Names::told));
        view->hide();
        view->show();
    }

    static QCoro::Task<std::vector<std::string>> look(std::vector<std::string> found) {
        co_return found;
    }

    BotComputer computer;
    std::vector<std::string> troubles;
    std::optional<Updater> updater;
    std::optional<SettingsView> view;
    std::optional<Controls> controls;
};

Config connected(bool topics = true, const char* group = "My Outbox") {
    Config config;
    config.chatId = -100;
    config.chatTitle = group;
    config.botName = "quillon_demo_bot";
    for (Topic& topic : config.topics)
        if (topics) topic.threadId = 7;
    return config;
}

Config found() {
    return connected(false);
}

Config onlyBot() {
    Config config;
    config.botName = "quillon_demo_bot";
    return config;
}

Config unnamed() {
    Config config = connected();
    config.botName.reset();
    return config;
}

Config longNames() {
    Config config = connected(true, longName);
    config.botName = "the_bot_with_the_longest_name_bot";
    config.topics[1].name = longName;
    return config;
}

/// The keyring is locked, and the settings cannot be saved.
Facts locked() {
    Facts facts{.config = connected(), .home = "/home/anna", .dataFolder = "/home/anna/data"};
    facts.xServer = XServerTraits{.presence = Presence::answers};
    facts.clipboard = ClipboardTraits{.way = ClipboardWay::x11};
    facts.bus = BusTraits{.bus = Presence::answers, .keyring = true};
    facts.folder = FolderTraits{.exists = true};
    facts.keyring = SecretAnswer::locked;
    return facts;
}

/// More than there is room for.
Facts manyTroubles() {
    Facts facts = locked();
    facts.login = LoginItem::Status::notFound;
    facts.look.outcome = HttpLook::Outcome::untrusted;
    facts.clipboard.reset();
    return facts;
}

using Act = std::function<void(Stage&)>;

struct Scene {
    std::function<std::unique_ptr<Stage>()> make;
    Act act = [](Stage&) {};
};

std::function<std::unique_ptr<Stage>()> on(const char* tab, const Config& config,
                                           bool token = true) {
    return [=] { return std::make_unique<Stage>(tab, config, token); };
}

constexpr const char* shortcutLine = "bindsym --to-code Ctrl+Alt+v exec '/home/anna/My "
                                     "Programs/Quillon.app/Contents/Linux/quillon' send";
constexpr const char* shortcutKeys = "Meta+Shift+F9";

/// The desktop has told of the shortcut.
Act withShortcut(HotKeyState state) {
    return [state = std::move(state)](Stage& stage) {
        stage.computer.store->registerShortcut();
        stage.computer.hotKeys.tell(PhysicalKey::v, state);
    };
}

const std::map<std::string, Scene> scenes{
    {"setup-1", {on("setup", {}, false)}},
    {"setup-1-error",
     {on("setup", {}, false),
      [](Stage& stage) {
          stage.type("Bot token", "1:nonsense");
          stage.click("Connect");
          stage.awaitText("Telegram didn't accept that bot token.");
      }}},
    {"setup-1-malformed",
     {on("setup", {}, false),
      [](Stage& stage) {
          stage.type("Bot token", "nonsense");
          stage.click("Connect");
      }}},
    {"setup-1-opened",
     {on("setup", {}, false),
      [](Stage& stage) {
          stage.open(3, "Make your group");
          stage.open(4, "Create the topics");
      }}},
    {"setup-1-working",
     {on("setup", {}, false),
      [](Stage& stage) {
          // The action goes on for ever: Telegram asks it to wait, and the clock stands still.
          stage.computer.sandbox.failNext(flood(1));
          stage.type("Bot token", BotComputer::token);
          stage.click("Connect");
          until([&] { return stage.computer.clock.pending() > 0; });
      }}},
    {"setup-3", {on("setup", onlyBot())}},
    {"setup-3-working",
     {on("setup", onlyBot()),
      [](Stage& stage) {
          stage.computer.sandbox.failNext(flood(1));
          stage.click("Find my group");
          until([&] { return stage.computer.clock.pending() > 0; });
      }}},
    {"setup-4", {on("setup", found())}},
    {"setup-4-error",
     {on("setup", found()),
      [](Stage& stage) {
          stage.computer.sandbox.failNext(refusal("createForumTopic", 400, noRights));
          stage.click("C&reate the topics");
          stage.awaitText("Couldn't create topics. Make the bot an admin with “Manage Topics” and "
                          "try again.");
      }}},
    {"setup-5", {on("setup", connected())}},
    {"setup-5-opened",
     {on("setup", longNames()),
      [](Stage& stage) {
          stage.open(2, "Paste the token");
          stage.open(4, "Create the topics");
      }}},
    {"setup-5-long", {on("setup", longNames())}},
    {"topics-unready", {on("topics", {}, false)}},
    {"topics",
     {on("topics", longNames()),
      [](Stage& stage) { stage.type("Text", ""), stage.type("Files", "Papers"); }}},
    {"topics-ready", {on("topics", connected())}},
    {"topics-saved",
     {on("topics", connected()),
      [](Stage& stage) {
          stage.type("Files", "Papers");
          sandbox::Fault success = answer("editForumTopic", sandbox::Json(true));
          success.count = 4;
          stage.computer.sandbox.failNext(success);
          stage.click("Save names to Telegram");
          stage.awaitText("Saved to Telegram.");
      }}},
    {"topics-error",
     {on("topics", connected()),
      [](Stage& stage) {
          stage.type("Files", "Papers");
          stage.computer.sandbox.failNext(refusal("editForumTopic", 400, noRights));
          stage.click("Save names to Telegram");
          stage.awaitText(noRights);
      }}},
    {"general", {on("general", connected()), [](Stage& stage) { stage.updater->start(); }}},
    {"general-no-icon",
     {on("general", unnamed()), [](Stage& stage) { stage.view->setPanelOffered(true); }}},
    {"general-long", {on("general", longNames())}},
    {"topics-trouble",
     {on("topics", connected()), [](Stage& stage) { stage.tellTroubles(locked()); }}},
    {"setup-5-troubles",
     {on("setup", connected()), [](Stage& stage) { stage.tellTroubles(manyTroubles()); }}},
    {"general-off",
     {on("general", {}, false),
      [](Stage& stage) {
          stage.computer.store->changeConfig([](Config& config) { config.showBanner = false; });
          for (const ShortcutChoice choice : allShortcutChoices) {
              stage.computer.store->changeConfig([&](Config& config) { config.shortcut = choice; });
              stage.computer.store->registerShortcut();
              for (const auto& key : stage.computer.hotKeys.registered)
                  stage.computer.hotKeys.takenByOthers.insert(key);
          }
          stage.computer.store->registerShortcut();
      }}},
    {"general-portal",
     {on("general", connected()), withShortcut({.way = ShortcutWay::portal,
                                                .offer = HotKeyState::Offer::configure,
                                                .trigger = shortcutKeys})}},
    {"general-asking",
     {on("general", connected()),
      withShortcut({.kind = HotKeyState::Kind::asking, .way = ShortcutWay::portal})}},
    {"general-unassigned",
     {on("general", connected()), withShortcut({.kind = HotKeyState::Kind::unassigned,
                                                .way = ShortcutWay::portal,
                                                .offer = HotKeyState::Offer::askAgain})}},
    {"general-gnome",
     {on("general", connected()), withShortcut({.kind = HotKeyState::Kind::unavailable,
                                                .way = ShortcutWay::gnomeBinding,
                                                .offer = HotKeyState::Offer::addBinding})}},
    {"general-line",
     {on("general", connected()), withShortcut({.kind = HotKeyState::Kind::unavailable,
                                                .way = ShortcutWay::compositorLine,
                                                .offer = HotKeyState::Offer::copyCommand,
                                                .command = shortcutLine,
                                                .place = "~/.config/sway/config"})}},
    {"uninstall",
     {on("general", connected()), [](Stage& stage) { stage.click("Uninstall Quillon…"); }}},
    {"uninstall-working",
     {on("general", connected()),
      [](Stage& stage) {
          stage.click("Uninstall Quillon…");
          QTest::keyClick(stage.view->findChild<UninstallSheet*>(), Qt::Key_Return);
      }}},
};

QPixmap take(const Scene& scene) {
    const std::unique_ptr<Stage> stage = scene.make();
    scene.act(*stage);
    waitUntil([] { return false; }, std::chrono::milliseconds{50});
    SettingsView& view = *stage->view;
    view.resize(SettingsView::fittingWidth(), std::max(200, view.fittingHeight()));
    QWidget* sheet = view.findChild<UninstallSheet*>();
    const QPixmap picture = pictureOf(sheet ? *sheet : static_cast<QWidget&>(view));
    // An action that still waits comes to its end, and then the next one has its turn, which has
    // nothing to rename.
    stage->computer.clock.advance(std::chrono::seconds{3});
    stage->computer.store->forgetBot();
    await(stage->computer.store->renameTopics());
    return picture;
}

std::vector<Shot> shots() {
    std::vector<Shot> shots;
    for (const auto& [name, scene] : scenes)
        shots.push_back({name, [&scene] { return take(scene); }});
    return shots;
}

/// The names that Telegram and the user have given.
QStringList names() {
    QStringList names{QString::fromUtf8(longName),
                      QStringLiteral("the_bot_with_the_longest_name_bot"),
                      QStringLiteral("quillon_demo_bot"),
                      QStringLiteral("My Outbox"),
                      QStringLiteral("Papers"),
                      QStringLiteral("nonsense"),
                      QStringLiteral("1:nonsense"),
                      QString::fromUtf8(BotComputer::token),
                      QString::fromUtf8(noRights),
                      QString::fromUtf8(shortcutLine),
                      QString::fromUtf8(shortcutKeys),
                      QStringLiteral("~/.config/sway/config"),
                      QStringLiteral("~/data"),
                      QStringLiteral("Quillon"),
                      QStringLiteral("⌃⌥V"),
                      QStringLiteral("⌃⌥P"),
                      QStringLiteral("⌃⌥C"),
                      QStringLiteral("V"),
                      QStringLiteral("P"),
                      QStringLiteral("C")};
    for (const Topic& topic : Topic::defaults())
        names << QString::fromStdString(topic.name);
    return names;
}

} // namespace

int main(int argc, char** argv) {
    return takeShots(argc, argv, shots(), names());
}
