#include "ui/App.h"

#include "analytics/Analytics.h"
#include "cli/SpokenBanner.h"
#include "desktop/HUD.h"
#include "maintenance/AppMover.h"
#include "maintenance/MessageBoxAlerts.h"
#include "platform/FileSystem.h"
#include "platform/LoginItem.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"
#include "platform/linux/FolderLock.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/QuitSignals.h"
#include "platform/linux/X11Compositor.h"
#include "platform/linux/X11HotKeys.h"
#include "platform/linux/X11Pasteboard.h"
#include "state/Store.h"
#include "ui/CommandService.h"

#include <QApplication>
#include <QFontMetrics>
#include <QTimer>

#include <iostream>

namespace quillon {

namespace {

/// Longer than a command takes, unless the network makes it wait.
constexpr std::chrono::milliseconds lockPatience{5000};

int failed(const char* reason) {
    std::cerr << reason << std::endl;
    return exitFailed;
}

/// The first text to be drawn has Qt look through the fonts, which takes longer than a frame:
/// better now than when the first banner fades in.
void loadFont() {
    [[maybe_unused]] const int width =
        QFontMetrics{QApplication::font()}.horizontalAdvance(QLatin1Char('Q'));
}

/// In the order that the parts need each other: a program that moves itself starts nothing here.
QCoro::Task<> startUp(Platform& platform, AppMover& mover, Analytics& analytics, Store& store) {
    if (mover.shouldAsk() && !platform.defaults.flag(AppMover::declinedKey).value_or(false)) {
        const bool moved = co_await mover.ask();
        if (moved) co_return;
    }
    platform.loginItem.follow(platform.bundle.executable);
    analytics.start();
    if (!store.started()) {
        store.setStarted();
        store.registerShortcut();
    }
    if (store.shortcutTaken()) {
        std::cerr << keysText(store.config().shortcut)
                  << " is already used by another app. Pick another shortcut in Settings."
                  << std::endl;
    }
    loadFont();
}

} // namespace

int App::run() {
    std::unique_ptr<Pasteboard> pasteboard = X11Pasteboard::open(nullptr);
    if (!pasteboard) return failed("There is no desktop to work on: no X server answers.");
    // The banner is an X11 window, also where the desktop offers Wayland as well.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "xcb");
    int argc = 1;
    char name[] = "quillon";
    char* argv[] = {name, nullptr};
    QApplication application{argc, argv};
    QApplication::setQuitOnLastWindowClosed(false);

    std::unique_ptr<HotKeys> hotKeys = X11HotKeys::open(nullptr);
    if (!hotKeys) hotKeys = std::make_unique<NoHotKeys>();
    LinuxPlatform services{std::move(pasteboard), std::move(hotKeys)};
    Platform& platform = services.platform();
    platform.files.createFolder(platform.dataFolder);
    const auto quit = [&platform] { platform.workspace.terminate(); };
    // First the name, then the lock: who finds no name may have the lock for a moment, and who
    // finds the name hands its command over.
    CommandService service{quit};
    if (service.publish() == CommandService::Publication::takenByAnother)
        return failed(FolderLock::heldMessage);
    const auto lock = FolderLock::take(platform.dataFolder, lockPatience);
    if (!lock) return failed(FolderLock::heldMessage);

    Analytics analytics{platform};
    const X11Compositor compositor;
    Store* settings = nullptr;
    HUD hud{platform.clock, compositor, [&settings] { return settings->config().bannerPosition; }};
    SpokenBanner banner{&hud};
    Store store{platform, analytics, banner};
    settings = &store;

    service.serve({platform, analytics, store, banner, nullptr});
    MessageBoxAlerts alerts;
    AppMover mover{platform, alerts};
    const QuitSignals signals{quit};
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &store,
                     [&analytics] { analytics.flushBeforeQuit(); });
    QTimer::singleShot(0, &store, [&] { startUp(platform, mover, analytics, store); });
    return QApplication::exec();
}

} // namespace quillon
