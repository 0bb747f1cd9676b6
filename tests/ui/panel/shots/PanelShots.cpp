// Renders the panel in each of its states into the folder given as argument, one PNG for each.
// DARK=1 gives dark colours; QT_SCALE_FACTOR and QT_FONT_DPI do what they do for every program.
#include "maintenance/Updater.h"
#include "platform/Compositor.h"
#include "support/Await.h"
#include "support/World.h"
#include "ui/panel/PanelView.h"
#include "ui/panel/PanelWindow.h"

#include <QApplication>
#include <QDir>
#include <QPalette>

#include <cstdio>
#include <functional>
#include <utility>

namespace {

using namespace quillon;
using namespace quillon::test;
using namespace std::chrono_literals;

class NoCompositor : public Compositor {
public:
    [[nodiscard]] bool active() const override { return false; }
};

struct Framework : UpdateFramework {
    std::optional<UpdateError> start(UpdaterDelegate& /*told*/) override { return std::nullopt; }
    void observeCanCheck(std::function<void(bool)> observer) override { observer(true); }
    void checkForUpdates() override {}
    [[nodiscard]] bool automaticallyChecksForUpdates() const override { return false; }
    void setAutomaticallyChecksForUpdates(bool /*automatically*/) override {}
};

Sent sent(std::string symbol, std::string title, std::string topic, std::chrono::seconds ago) {
    return {QUuid::createUuid(), std::move(symbol),       std::move(title),
            std::move(topic),    FakeClock{}.now() - ago, {}};
}

Sent failed(Sent entry, std::string error) {
    entry.error = std::move(error);
    return entry;
}

const std::vector<Sent> history{
    sent("text.alignleft", "“The tram leaves at 18:42 from platform 3”", "📝 Notes", 12s),
    sent("photo", "Image · 2560×1440", "📸 Images", 4min),
    failed(sent("film", "holiday in the mountains, second evening, uncut.mp4", "🎬 Videos", 1h),
           "The file is 3.1 GB. A Telegram bot can send files up to 50 MB."),
    sent("doc", "Quarterly report with all appendices and the corrections of May.pdf", "📄 Files",
         26h),
    sent("text.alignleft", "“https://example.com/a/very/long/address?with=parameters”", "📝 Notes",
         24h * 9),
    sent("doc", "never shown.zip", "📄 Files", 24h * 10),
};

struct Shot {
    const char* name;
    bool ready = true;
    std::vector<Sent> history{};
    FakePasteboard::Content clipboard{};
    const char* group = "Anna & Phone";
    bool updates = true;
    bool taken = false;
};

const std::vector<Shot> shots{
    {.name = "new", .ready = false, .group = "", .updates = false},
    {.name = "new-taken", .ready = false, .group = "", .taken = true},
    {.name = "ready", .history = history, .clipboard = {{"UTF8_STRING", "Buy milk and bread"}}},
    {.name = "no-history", .clipboard = {}, .updates = false},
    {.name = "taken",
     .history = {history[0], history[1]},
     .clipboard = {{"UTF8_STRING", "https://example.com"}},
     .taken = true},
    {.name = "long",
     .history = history,
     .clipboard = {{"UTF8_STRING", "A sentence that is by far too long for the line it stands in"}},
     .group = "The group of everybody who ever wanted to send something to a phone"},
};

void seed(World& world, const Shot& shot) {
    world.platform.system.locale = "en_US";
    world.setContent("history.json", encodeHistory(shot.history));
    world.pasteboard.copy(shot.clipboard);
    if (shot.taken) world.hotKeys.takenByOthers = {PhysicalKey::v, PhysicalKey::p, PhysicalKey::c};
    if (shot.ready) {
        Config config;
        config.chatId = -100'1;
        config.chatTitle = shot.group;
        for (Topic& topic : config.topics)
            topic.threadId = 7;
        world.setContent("config.json", encodeConfig(config));
        const KeychainItem& item = botTokenItem();
        world.secrets.values[{item.service, item.account}] = "1:x";
    }
    if (shot.updates) world.platform.bundle.info["SUFeedURL"] = "https://example.com/feed.xml";
    world.restart();
    world.store->registerShortcut();
}

void take(const Shot& shot, const QDir& folder) {
    World world;
    seed(world, shot);
    Updater updater{world.platform,
                    *world.analytics,
                    {.makeFramework = [] { return std::make_unique<Framework>(); },
                     .shouldAskToMove = {},
                     .askToMove = {},
                     .log = [](const std::string&) {}}};
    updater.start();
    NoCompositor compositor;
    PanelWindow window{compositor, world.workspace, [&] {
                           return std::make_unique<PanelView>(world.platform, *world.store, updater,
                                                              PanelActions{});
                       }};
    window.open({});
    waitUntil([] { return false; }, 200ms);
    window.show(); // another window of the display may have taken the focus
    waitUntil([] { return false; }, 100ms);
    window.grab().save(folder.filePath(QString::fromLatin1(shot.name) + QStringLiteral(".png")));
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application{argc, argv};
    if (qEnvironmentVariableIsSet("DARK")) QApplication::setPalette(QColor{45, 45, 48});
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 2 || !QDir{}.mkpath(arguments[1])) {
        std::fputs("usage: panel_shots FOLDER\n", stderr);
        return 2;
    }
    for (const Shot& shot : shots)
        take(shot, QDir{arguments[1]});
    return 0;
}
