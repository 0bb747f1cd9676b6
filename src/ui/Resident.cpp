#include "ui/Resident.h"

#include "base/Translate.h"
#include "doctor/Examination.h"
#include "doctor/Rules.h"
#include "maintenance/AppMover.h"
#include "platform/LoginItem.h"
#include "platform/Platform.h"
#include "platform/Sleep.h"
#include "platform/Workspace.h"
#include "platform/linux/desktop/ActivationToken.h"
#include "ui/controls/MessageWindow.h"
#include "ui/panel/PanelView.h"
#include "ui/settings/SettingsView.h"
#include "update/BundleUpdater.h"
#include "update/Installation.h"

#include <QApplication>
#include <QCoroFuture>
#include <QFontMetrics>
#include <QPointer>
#include <QTimer>
#include <QtConcurrentRun>

#include <chrono>
#include <iostream>
#include <tuple>
#include <utility>

namespace quillon {

namespace {

/// Most commands are done with the data within this.
constexpr std::chrono::milliseconds quietWait{700};

/// The icon is in its place this long after the start.
constexpr std::chrono::milliseconds quietMoment{100};

/// How long a send that is under way when the program quits may take to end.
constexpr std::chrono::milliseconds sendPatience{700};

/// Qt looks through the fonts when it draws its first text, which takes longer than a frame. This
/// has it done soon after the start, before the first banner fades in.
void loadFont() {
    [[maybe_unused]] const int width =
        QFontMetrics{QApplication::font()}.horizontalAdvance(QLatin1Char('Q'));
}

/// Tells what the start waits for. Its button ends the program.
QWidget* showWaiting(Platform& platform) {
    auto* const window = new MessageWindow{
        QCoreApplication::translate("Resident", "Quillon is waiting"),
        QCoreApplication::translate("Resident",
                                    "Another Quillon is at work, such as a command that sends. "
                                    "This one starts as soon as it is done.")};
    window->setWindowTitle(QStringLiteral("Quillon"));
    window->setEscape(window->addButton(QCoreApplication::translate("Resident", "Quit"),
                                        MessageWindow::Place::secondary,
                                        [&platform] { platform.workspace.terminate(); }));
    window->show();
    platform.workspace.bringToFront(*window->windowHandle());
    return window;
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

QCoro::Task<std::unique_ptr<Resident>> Resident::claim(Platform& platform, Compositor& compositor,
                                                       Alerts& alerts, AppMover& mover) {
    // The name comes before the lock: a command that finds the name hands itself over, and one that
    // found none before holds the lock only for a moment.
    auto service =
        std::make_unique<CommandService>([&platform] { platform.workspace.terminate(); });
    if (service->publish() == CommandService::Publication::takenByAnother)
        co_return std::unique_ptr<Resident>{};
    std::optional<FolderLock> lock = co_await takeDataLock(platform, quietWait);
    if (!lock) {
        const QPointer<QWidget> notice = showWaiting(platform);
        lock = co_await takeDataLock(platform, std::chrono::milliseconds::max());
        delete notice;
    }
    co_return std::unique_ptr<Resident>{
        new Resident{platform, compositor, alerts, mover, std::move(service), *std::move(lock)}};
}

Resident::Resident(Platform& platform, Compositor& compositor, Alerts& alerts, AppMover& mover,
                   std::unique_ptr<CommandService> service, FolderLock lock)
    : platform_{platform},
      lock_{std::move(lock)},
      core_{platform, &compositor},
      configWatch_{platform, core_.store},
      updater_{platform, core_.analytics, hooks(platform, mover, updateWindows_)},
      uninstaller_{platform, core_.store, core_.analytics, alerts,
                   [this] { return dropUpdates(); }},
      settingsWindow_{platform.workspace,
                      [this](const SettingsWindow::Fit& fit) { return makeSettings(fit); }},
      panelWindow_{compositor, platform.workspace, [this] { return makePanel(); }},
      trayIcon_{core_.store, platform.clock, trayActions()},
      service_{std::move(service)} {}

std::unique_ptr<QWidget> Resident::makeSettings(const SettingsWindow::Fit& fit) {
    SettingsActions actions{
        .showBanner = [this](BannerMessage message) { core_.hud->show(std::move(message)); },
        .uninstall = [this] { return uninstaller_.run(); },
        .openPanel = desktopActions().showPanel,
        .troubles = [this] { return troubles(); }};
    auto view = std::make_unique<SettingsView>(core_.store, updater_, std::move(actions),
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
        platform_, core_.store, updater_,
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
            .send = [this] { std::ignore = core_.store.sendClipboard(Trigger::button); },
            .dropUpdate =
                [this] {
                    if (updater_.controller()) std::ignore = updater_.controller()->abandon();
                }};
}

QCoro::Task<> Resident::dropUpdates() {
    constexpr std::chrono::milliseconds interval{50};
    UpdateFramework* const framework = updater_.controller();
    while (framework && !framework->abandon()) {
        co_await sleep(platform_.clock, interval);
    }
    const QFuture<void> removing =
        QtConcurrent::run(removeLeftovers, platform_.bundle, platform_.folders);
    co_await removing;
}

void Resident::start(std::string_view wanted) {
    platform_.loginItem.followIfLost(platform_.bundle.executable);
    core_.analytics.start();
    updater_.start();
    QObject::connect(&core_.store, &Store::shortcutPressed, &core_.store,
                     [this](const std::string& activation) {
                         ActivationToken::keep(QByteArray::fromStdString(activation));
                         std::ignore = core_.store.sendClipboard(Trigger::shortcut);
                     });
    if (!core_.store.started()) {
        core_.store.setStarted();
        core_.store.registerShortcut();
    }
    // The windows say so, too; this is for people who started the program from a terminal.
    if (core_.store.shortcutTaken())
        std::cerr << PanelView::takenText(core_.store.config().shortcut).toStdString() << std::endl;
    offerSetup();
    service_->serve({.platform = platform_, .core = core_, .console = nullptr, .stays = true},
                    desktopActions());
    if (!wanted.empty()) service_->wishByName(QString::fromStdString(std::string{wanted}), {});
    QTimer::singleShot(quietMoment, &core_.store, loadFont);
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, &core_.store, [this] {
        core_.store.endSending(sendPatience);
        core_.analytics.flushBeforeQuit();
    });
}

QCoro::Task<> Resident::offerSetup() {
    // Without a group the setup is not finished, whatever the keyring says.
    if (core_.store.isConnected()) {
        QCoro::Task<> asked = core_.store.keyringAsked();
        co_await asked;
    }
    if (!core_.store.mayBeReady()) settingsWindow_.show();
}

QCoro::Task<std::vector<std::string>> Resident::troubles() {
    // While the setup is not finished, its guide tells what is missing.
    if (!core_.store.mayBeReady()) co_return std::vector<std::string>{};
    QCoro::Task<Facts> examination = examine(platform_, core_.store, surroundings_, true);
    const Facts facts = co_await examination;
    std::vector<Finding> found = findings(facts, Names::told);
    // The general settings tell that themselves, with what can be done.
    std::erase_if(found, [](const Finding& each) { return each.check == "shortcut"; });
    co_return failures(found);
}

} // namespace quillon
