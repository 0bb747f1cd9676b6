#include "ui/Resident.h"

#include "base/Translate.h"
#include "maintenance/AppMover.h"
#include "platform/FileSystem.h"
#include "platform/LoginItem.h"
#include "platform/Platform.h"
#include "platform/Sleep.h"
#include "platform/Workspace.h"
#include "ui/panel/PanelView.h"
#include "ui/settings/SettingsView.h"
#include "update/BundleUpdater.h"

#include <QApplication>
#include <QFontMetrics>
#include <QTimer>

#include <chrono>
#include <iostream>
#include <tuple>
#include <utility>

namespace quillon {

namespace {

/// After the start, when the icon is in its place.
constexpr std::chrono::milliseconds quietMoment{100};

/// Together longer than a command takes, unless the network makes it wait.
constexpr int lockTries = 100;
constexpr std::chrono::milliseconds lockInterval{50};

/// The first text to be drawn has Qt look through the fonts, which takes longer than a frame:
/// better soon after the start than when the first banner fades in.
void loadFont() {
    [[maybe_unused]] const int width =
        QFontMetrics{QApplication::font()}.horizontalAdvance(QLatin1Char('Q'));
}

UpdaterHooks hooks(Platform& platform, AppMover& mover, UpdateWindows& windows) {
    return {
        .makeFramework = [&platform,
                          &windows] { return std::make_unique<BundleUpdater>(platform, windows); },
        .shouldAskToMove = [&mover] { return mover.shouldAsk(); },
        .askToMove = [&mover] { return mover.ask(); },
        .log = {}};
}

} // namespace

QCoro::Task<std::unique_ptr<Resident>> Resident::claim(Platform& platform, Alerts& alerts,
                                                       AppMover& mover) {
    platform.files.createFolder(platform.dataFolder);
    // First the name, then the lock: who finds no name may have the lock for a moment, and who
    // finds the name hands its command over.
    auto service =
        std::make_unique<CommandService>([&platform] { platform.workspace.terminate(); });
    if (service->publish() == CommandService::Publication::takenByAnother)
        co_return std::unique_ptr<Resident>{};
    auto lock = FolderLock::take(platform.dataFolder);
    for (int tries = 1; !lock && tries < lockTries; ++tries) {
        co_await sleep(platform.clock, lockInterval);
        auto another = FolderLock::take(platform.dataFolder);
        if (another) lock.emplace(*std::move(another));
    }
    if (!lock) co_return std::unique_ptr<Resident>{};
    co_return std::unique_ptr<Resident>{
        new Resident{platform, alerts, mover, std::move(service), *std::move(lock)}};
}

Resident::Resident(Platform& platform, Alerts& alerts, AppMover& mover,
                   std::unique_ptr<CommandService> service, FolderLock lock)
    : platform_{platform},
      lock_{std::move(lock)},
      analytics_{platform},
      hud_{platform.clock, compositor_, [this] { return store_.config().bannerPosition; }},
      banner_{&hud_},
      store_{platform, analytics_, banner_},
      updater_{platform, analytics_, hooks(platform, mover, updateWindows_)},
      uninstaller_{platform, store_, analytics_, alerts},
      settingsWindow_{platform.workspace,
                      [this](const SettingsWindow::Fit& fit) { return makeSettings(fit); }},
      panelWindow_{compositor_, platform.workspace, [this] { return makePanel(); }},
      trayIcon_{store_, platform.clock, trayActions()},
      service_{std::move(service)} {}

std::unique_ptr<QWidget> Resident::makeSettings(const SettingsWindow::Fit& fit) {
    SettingsActions actions{.showBanner =
                                [this](std::string text, std::string symbol, bool ok, bool sticky) {
                                    hud_.show(std::move(text), std::move(symbol), ok, sticky);
                                },
                            .uninstall = [this] { return uninstaller_.run(); },
                            .openPanel = desktopActions().showPanel};
    auto view = std::make_unique<SettingsView>(store_, updater_, std::move(actions),
                                               QStringLiteral("setup"));
    QObject::connect(view.get(), &SettingsView::fittingHeightChanged, view.get(),
                     [fit](int height) { fit(height); });
    const auto offerPanel = [this, view = view.get()] {
        view->setPanelOffered(trayIcon_.missing());
    };
    QObject::connect(&trayIcon_, &TrayIcon::missingChanged, view.get(), offerPanel);
    offerPanel();
    return view;
}

std::unique_ptr<PanelView> Resident::makePanel() {
    return std::make_unique<PanelView>(
        platform_, store_, updater_,
        PanelActions{.showSettings = [this] { settingsWindow_.show(); },
                     .quit = [this] { platform_.workspace.terminate(); }});
}

TrayActions Resident::trayActions() {
    return {.togglePanel = [this](const QRect& icon) { panelWindow_.toggle(icon); },
            .openPanel = [this](const QRect& icon) { panelWindow_.open(icon); },
            .showSettings = [this] { settingsWindow_.show(); },
            .quit = [this] { platform_.workspace.terminate(); }};
}

DesktopActions Resident::desktopActions() {
    return {.showSettings = [this] { settingsWindow_.show(); },
            .showPanel = [this] { panelWindow_.open(trayIcon_.place()); },
            .send = [this] { std::ignore = store_.sendClipboard("button"); }};
}

void Resident::start(std::string_view wanted) {
    platform_.loginItem.follow(platform_.bundle.executable);
    analytics_.start();
    updater_.start();
    if (!store_.started()) {
        store_.setStarted();
        store_.registerShortcut();
    }
    // For whoever started it from a terminal; the windows say the same.
    if (store_.shortcutTaken())
        std::cerr << PanelView::takenText(store_.config().shortcut).toStdString() << std::endl;
    if (!store_.isReady()) settingsWindow_.show();
    service_->serve({platform_, analytics_, store_, banner_, nullptr}, desktopActions());
    if (!wanted.empty()) service_->wishByName(QString::fromStdString(std::string{wanted}), {});
    QTimer::singleShot(quietMoment, &store_, loadFont);
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, &store_,
                     [this] { analytics_.flushBeforeQuit(); });
}

} // namespace quillon
