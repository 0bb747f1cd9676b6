// Takes pictures of the panel in each of its states.
#include "maintenance/Updater.h"
#include "shots/Shots.h"
#include "support/ConnectedComputer.h"
#include "support/FakeCompositor.h"
#include "support/FakeFramework.h"
#include "support/Faults.h"
#include "ui/controls/Buttons.h"
#include "ui/panel/Age.h"
#include "ui/panel/PanelView.h"
#include "ui/panel/PanelWindow.h"
#include "ui/panel/SendButton.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QTest>

#include <utility>

namespace {

using namespace quillon;
using namespace quillon::test;
using namespace std::chrono_literals;

Sent sent(std::string symbol, std::string title, std::string topic, std::chrono::seconds ago) {
    return {QUuid::createUuid(), std::move(symbol),       std::move(title),
            std::move(topic),    FakeClock{}.now() - ago, {}};
}

Sent failed(Sent entry, std::string error) {
    entry.error = std::move(error);
    return entry;
}

const std::vector<Sent> history{
    sent("text.alignleft", "“The tram leaves at 18:42 from platform 3”", "📝 Notes & text", 12s),
    sent("photo", "Image · 2560×1440", "📸 Images", 4min),
    failed(
        sent("film.fill", "holiday in the mountains, second evening.mp4", "🎬 Videos", 1h),
        "holiday in the mountains, second evening.mp4 is over 50 MB (Telegram's limit for bots)"),
    sent("doc.fill", "Quarterly report with all appendices and the corrections of May.pdf",
         "📎 Files", 26h),
    sent("text.alignleft", "“https://example.com/a/very/long/address?with=parameters”",
         "📝 Notes & text", 24h * 9),
    sent("doc.fill", "sixth.zip", "📎 Files", 24h * 10),
    sent("doc.fill", "seventh.zip", "📎 Files", 24h * 11),
};

constexpr const char* longGroup =
    "The group of everybody who ever wanted to send something to a phone";
constexpr const char* longText = "A sentence that is by far too long for the line it stands in";

constexpr const char* shortcutKeys = "Meta+Shift+F9";

const std::vector<Sent> longHistory{
    failed(sent("text.alignleft", "“" + std::string{longText} + "”", longGroup, 12s),
           "Bad Request: the message could not be sent, for reasons that take more than two lines "
           "of this narrow panel to be told"),
    sent("doc.fill", "Eine-sehr-lange-Datei-mit-einem-Namen-ohne-Ende-Fassung-3.pdf", longGroup,
         24h * 400),
};

struct Scene {
    const char* name;
    bool ready = true;
    std::vector<Sent> history{};
    FakePasteboard::Content clipboard{};
    const char* group = "Anna & Phone";
    bool updates = true;
    bool taken = false;
    std::optional<HotKeyState> shortcut{};
    void (*act)(BotComputer&, PanelView&) = nullptr;
};

/// Makes the widget look as if the pointer were on it.
void hover(QWidget& widget) {
    widget.setAttribute(Qt::WA_UnderMouse);
    widget.update();
}

QAbstractButton& sendButton(PanelView& panel) {
    return *panel.findChild<SendButton*>();
}

/// Makes the send go on for ever: Telegram asks it to wait, and the clock stands still.
void sendForever(BotComputer& computer, PanelView& panel) {
    computer.sandbox.failNext(flood(1));
    sendButton(panel).click();
    until([&] { return computer.store->busy(); });
    const auto before = computer.clock.pending();
    until([&] { return computer.clock.pending() > before; });
}

/// Drags a file over the panel.
void dragOver(BotComputer& /*computer*/, PanelView& panel) {
    QMimeData file;
    file.setUrls({QUrl::fromLocalFile(QStringLiteral("/tmp/file"))});
    QDragEnterEvent event{{}, Qt::CopyAction, &file, Qt::LeftButton, {}};
    QCoreApplication::sendEvent(&panel, &event);
}

const FakePasteboard::Content shortText{{"UTF8_STRING", "Buy milk and bread"}};

const std::vector<Scene> scenes{
    {.name = "not-set-up", .ready = false, .group = "", .updates = false},
    {.name = "not-set-up-taken", .ready = false, .group = "", .taken = true},
    {.name = "ready", .history = {history.begin(), history.begin() + 2}, .clipboard = shortText},
    {.name = "busy",
     .history = {history.begin(), history.begin() + 2},
     .clipboard = shortText,
     .act = sendForever},
    {.name = "drop",
     .history = {history.begin(), history.begin() + 2},
     .clipboard = shortText,
     .act = dragOver},
    {.name = "taken",
     .history = {history.begin(), history.begin() + 2},
     .clipboard = {{"UTF8_STRING", "https://example.com"}},
     .taken = true},
    {.name = "portal",
     .history = {history.begin(), history.begin() + 2},
     .clipboard = shortText,
     .shortcut = HotKeyState{.way = ShortcutWay::portal, .trigger = shortcutKeys}},
    {.name = "line",
     .history = {history.begin(), history.begin() + 2},
     .clipboard = shortText,
     .shortcut = HotKeyState{.kind = HotKeyState::Kind::unavailable,
                             .way = ShortcutWay::compositorLine,
                             .offer = HotKeyState::Offer::copyCommand,
                             .command = "bindsym"}},
    {.name = "no-history", .clipboard = {}, .updates = false},
    {.name = "seven", .history = history, .clipboard = shortText},
    {.name = "long",
     .history = longHistory,
     .clipboard = {{"UTF8_STRING", longText}},
     .group = longGroup},
    {.name = "focus",
     .clipboard = shortText,
     .act =
         [](BotComputer&, PanelView& panel) {
             sendButton(panel).clearFocus(); // it had the focus without showing it
             sendButton(panel).setFocus(Qt::TabFocusReason);
         }},
    {.name = "hover",
     .clipboard = shortText,
     .act =
         [](BotComputer&, PanelView& panel) {
             hover(sendButton(panel));
             hover(*panel.findChildren<TextButton*>().value(1)); // after that of the setup
         }},
    {.name = "pressed",
     .clipboard = shortText,
     .act = [](BotComputer&, PanelView& panel) { sendButton(panel).setDown(true); }},
};

void seed(TestComputer& computer, const Scene& scene) {
    computer.platform.system.locale = "en_US";
    computer.setContent("history.json", encodeHistory(scene.history));
    computer.pasteboard.copy(scene.clipboard);
    if (scene.taken)
        computer.hotKeys.takenByOthers = {PhysicalKey::v, PhysicalKey::p, PhysicalKey::c};
    if (scene.ready) {
        Config config;
        config.chatId = -100'1;
        config.chatTitle = scene.group;
        for (Topic& topic : config.topics)
            topic.threadId = 7;
        computer.setContent("config.json", encodeConfig(config));
        const KeychainItem& item = botTokenItem();
        computer.secrets.values[{item.service, item.account}] = BotComputer::token;
    }
    if (scene.updates) computer.platform.bundle.info["SUFeedURL"] = "https://example.com/feed.xml";
    computer.restart();
    computer.store->registerShortcut();
    if (scene.shortcut) computer.hotKeys.tell(PhysicalKey::v, *scene.shortcut);
}

QPixmap take(const Scene& scene) {
    BotComputer computer;
    seed(computer, scene);
    FakeFramework* framework = nullptr;
    Updater updater{computer.platform, *computer.analytics, fakeHooks(framework)};
    updater.start();
    FakeCompositor compositor;
    PanelView* panel = nullptr;
    PanelWindow window{compositor, computer.workspace, [&] {
                           auto made = std::make_unique<PanelView>(
                               computer.platform, *computer.store, updater, PanelActions{});
                           panel = made.get();
                           return made;
                       }};
    window.open({});
    until([&] { return computer.store->tokenSaved() || !scene.ready; });
    waitUntil([] { return false; }, 50ms);
    window.show(); // again, if another window of the display has taken the focus
    if (scene.act) scene.act(computer, *panel);
    const QPixmap picture = pictureOf(window);
    computer.clock.advance(3s); // a send that still waits comes to its end
    until([&] { return !computer.store->busy(); });
    return picture;
}

std::vector<Shot> shots() {
    std::vector<Shot> shots;
    for (const Scene& scene : scenes)
        shots.push_back({scene.name, [&scene] { return take(scene); }});
    return shots;
}

/// The texts from outside that the panel shows: titles, topics, groups and ages.
QStringList names() {
    QStringList names{QStringLiteral("Quillon"),
                      QStringLiteral("Anna & Phone"),
                      QString::fromUtf8(longGroup),
                      QString::fromUtf8(longText),
                      QStringLiteral("Buy milk and bread"),
                      QStringLiteral("https://example.com"),
                      QString::fromUtf8(shortcutKeys),
                      QStringLiteral("V")};
    for (const auto& entries : {history, longHistory}) {
        for (const Sent& entry : entries) {
            names << QString::fromStdString(entry.title) << QString::fromStdString(entry.topic)
                  << QString::fromStdString(entry.error.value_or(""))
                  << age(entry.date, FakeClock{}.now(), "en_US");
        }
    }
    names.removeAll(QString{});
    return names;
}

} // namespace

int main(int argc, char** argv) {
    return takeShots(argc, argv, shots(), names());
}
