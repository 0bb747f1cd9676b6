// Takes pictures of the settings window in every condition. Arguments: the folder to put them in
// and, if it shall not be all of them, the names of some. DARK=1 gives dark colours,
// QT_SCALE_FACTOR larger pixels, and TEXT=1.5 larger text.
#include "maintenance/Updater.h"
#include "support/ConnectedWorld.h"
#include "support/Controls.h"
#include "support/FakeFramework.h"
#include "support/Faults.h"
#include "ui/settings/SettingsView.h"
#include "ui/settings/UninstallSheet.h"
#include "ui/views/Motion.h"

#include <QApplication>
#include <QLineEdit>
#include <QStyle>

#include <cstdio>
#include <map>

namespace {

using namespace quillon;
using namespace quillon::test;

constexpr const char* longName =
    "The outbox of everybody in the family who has a phone and a computer";

/// The window over a store in one state of its setup.
struct Stage {
    Stage(const char* tab, const Config& config, bool token = true) {
        world.sandbox.userSays(world.sandbox.addGroup(), "hi");
        world.setContent("config.json", encodeConfig(config));
        const KeychainItem& item = botTokenItem();
        if (token) world.secrets.values[{item.service, item.account}] = BotWorld::token;
        world.restart();
        world.platform.bundle.info["SUFeedURL"] = "https://example.com/feed.xml";
        updater.emplace(
            world.platform, *world.analytics,
            UpdaterHooks{.makeFramework = [] { return std::make_unique<FakeFramework>(); },
                         .shouldAskToMove = [] { return false; },
                         .askToMove = {},
                         .log = [](const std::string&) {}});
        view.emplace(*world.store, *updater,
                     SettingsActions{.showBanner = [](auto&&...) {},
                                     .activate = [] {},
                                     .uninstall = []() -> QCoro::Task<> { co_return; }},
                     QString::fromLatin1(tab));
        controls.emplace(*view);
    }

    void click(const char* name) const { controls->click(QString::fromUtf8(name)); }
    void type(const char* field, const char* text) const {
        auto& edit = controls->get<QLineEdit>(QString::fromUtf8(field));
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, QString::fromUtf8(text));
    }

    BotWorld world;
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

Config longNames() {
    Config config = connected(true, longName);
    config.botName = "the_bot_with_the_longest_name_bot";
    config.topics[1].name = longName;
    return config;
}

using Shot = std::function<void(Stage&)>;
struct Scene {
    std::function<std::unique_ptr<Stage>()> make;
    Shot act = [](Stage&) {};
};

std::function<std::unique_ptr<Stage>()> on(const char* tab, const Config& config,
                                           bool token = true) {
    return [=] { return std::make_unique<Stage>(tab, config, token); };
}

const std::map<std::string, Scene> scenes{
    {"setup-1", {on("setup", {}, false)}},
    {"setup-1-error",
     {on("setup", {}, false),
      [](Stage& stage) {
          stage.type("Bot token", "nonsense");
          stage.click("Connect");
      }}},
    {"setup-1-opened",
     {on("setup", {}, false),
      [](Stage& stage) {
          stage.click("Step 3: Make your group");
          stage.click("Step 4: Create the topics");
      }}},
    {"setup-1-working",
     {on("setup", {}, false),
      [](Stage& stage) {
          stage.world.sandbox.failNext(fault(sandbox::FaultKind::hang));
          stage.type("Bot token", BotWorld::token);
          stage.click("Connect");
      }}},
    {"setup-3", {on("setup", onlyBot())}},
    {"setup-4", {on("setup", found())}},
    {"setup-5", {on("setup", connected())}},
    {"setup-5-opened",
     {on("setup", longNames()),
      [](Stage& stage) {
          stage.click("Step 2: Paste the token");
          stage.click("Step 4: Create the topics");
      }}},
    {"setup-5-long", {on("setup", longNames())}},
    {"topics-unready", {on("topics", {}, false)}},
    {"topics",
     {on("topics", longNames()),
      [](Stage& stage) { stage.type("Text", ""), stage.type("Files", "Papers"); }}},
    {"topics-error",
     {on("topics", connected()),
      [](Stage& stage) {
          stage.type("Files", "Papers");
          stage.world.sandbox.failNext(
              refusal("editForumTopic", 400, "Bad Request: not enough rights to manage topics"));
          stage.click("Save names to Telegram");
          waitUntil([&] { return !stage.world.methods().empty(); });
          waitUntil([] { return false; }, std::chrono::milliseconds{500});
      }}},
    {"general", {on("general", connected()), [](Stage& stage) { stage.updater->start(); }}},
    {"general-long", {on("general", longNames())}},
    {"general-off",
     {on("general", {}, false),
      [](Stage& stage) {
          stage.world.store->changeConfig([](Config& config) { config.showBanner = false; });
          for (const ShortcutChoice choice : allShortcutChoices) {
              stage.world.store->changeConfig([&](Config& config) { config.shortcut = choice; });
              stage.world.store->registerShortcut();
              for (const auto& key : stage.world.hotKeys.registered)
                  stage.world.hotKeys.takenByOthers.insert(key);
          }
          stage.world.store->registerShortcut();
      }}},
    {"uninstall",
     {on("general", connected()), [](Stage& stage) { stage.click("Uninstall Quillon…"); }}},
    {"uninstall-working",
     {on("general", connected()),
      [](Stage& stage) {
          stage.click("Uninstall Quillon…");
          QTest::keyClick(stage.view->findChild<UninstallSheet*>(), Qt::Key_Return);
      }}},
};

void take(const std::string& name, const QString& folder) {
    const Scene& scene = scenes.at(name);
    const std::unique_ptr<Stage> stage = scene.make();
    scene.act(*stage);
    waitUntil([] { return false; }, std::chrono::milliseconds{50});
    SettingsView& view = *stage->view;
    view.resize(SettingsView::fittingWidth(), std::max(200, view.fittingHeight()));
    waitUntil([] { return false; }, std::chrono::milliseconds{50});
    QWidget* sheet = view.findChild<UninstallSheet*>();
    QWidget& shown = sheet ? *sheet : view;
    shown.grab().save(folder + QLatin1Char{'/'} + QString::fromStdString(name) +
                      QStringLiteral(".png"));
    std::printf("%s %dx%d\n", name.c_str(), shown.width(), shown.height());
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application{argc, argv};
    setAnimationsEnabled(false);
    if (qEnvironmentVariableIsSet("DARK")) {
        QPalette palette{QColor{45, 45, 48}};
        palette.setColor(QPalette::Base, QColor{30, 30, 32});
        QApplication::setPalette(palette);
    }
    QFont font = QApplication::font();
    const double text = qEnvironmentVariable("TEXT", QStringLiteral("1")).toDouble();
    font.setPointSizeF(font.pointSizeF() * text);
    QApplication::setFont(font);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 2) {
        std::fputs("usage: settings_shots FOLDER [NAME...]\n", stderr);
        return 2;
    }
    for (const auto& [name, scene] : scenes) {
        if (arguments.size() == 2 || arguments.contains(QString::fromStdString(name)))
            take(name, arguments[1]);
    }
    return 0;
}
