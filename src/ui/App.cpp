#include "ui/App.h"

#include "base/Translate.h"
#include "cli/CommandLine.h"
#include "cli/RemoteProgram.h"
#include "maintenance/AppMover.h"
#include "platform/Sleep.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/QuitSignals.h"
#include "platform/linux/desktop/LinuxAppearance.h"
#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/X11HotKeys.h"
#include "platform/linux/x11/X11Pasteboard.h"
#include "ui/Resident.h"
#include "ui/alerts/AlertWindows.h"
#include "ui/controls/AppIcon.h"
#include "ui/theme/ApplicationTheme.h"

#include <QApplication>
#include <QTimer>

#include <chrono>
#include <iostream>

namespace quillon {

namespace {

/// How the desktop knows the program: by its name, its icon and its desktop entry.
void introduce() {
    QApplication::setQuitOnLastWindowClosed(false);
    // Not as the display name, which Qt would put behind the title of every window.
    QApplication::setApplicationName(QStringLiteral("Quillon"));
    QApplication::setDesktopFileName(QString::fromLatin1(applicationIdentifier));
    QApplication::setWindowIcon(appIcon());
}

/// A program that moves itself starts nothing else here.
QCoro::Task<> launch(Platform& platform, Alerts& alerts, AppMover& mover,
                     std::unique_ptr<Resident>& resident, App::Start start,
                     QVariantMap activationData) {
    if (mover.shouldAsk() && !platform.defaults.flag(AppMover::declinedKey).value_or(false)) {
        const bool moved = co_await mover.ask();
        if (moved) co_return;
    }
    std::unique_ptr<Resident> claimed = co_await Resident::claim(platform, alerts, mover);
    resident = std::move(claimed);
    if (resident) {
        // The icon is in its place before everything else begins.
        co_await sleep(platform.clock, std::chrono::milliseconds{0});
        resident->start();
        if (start == App::Start::withSettings) resident->showSettings();
        if (start == App::Start::withPanel) resident->showPanel();
        co_return;
    }
    const char* const wanted = start == App::Start::withPanel ? "panel" : "settings";
    const bool shown = RemoteProgram::activate(wanted, activationData);
    if (!shown) std::cerr << FolderLock::heldMessage() << std::endl;
    QCoreApplication::exit(shown ? exitDone : exitFailed);
}

} // namespace

int App::run(Start start) {
    const QVariantMap activationData = RemoteProgram::activationData();
    int argc = 1;
    char name[] = "quillon";
    char* argv[] = {name, nullptr};
    std::unique_ptr<Pasteboard> pasteboard = X11Pasteboard::open(nullptr);
    if (!pasteboard) {
        const QCoreApplication speaker{argc, argv};
        loadCatalogue();
        std::cerr << translate("App", "There is no desktop to work on: no X server answers.")
                  << std::endl;
        return exitFailed;
    }
    preferX11();
    QApplication application{argc, argv};
    loadCatalogue();
    introduce();
    ApplicationTheme theme;
    LinuxAppearance appearance;
    theme.follow(appearance);

    std::unique_ptr<HotKeys> hotKeys = X11HotKeys::open(nullptr);
    if (!hotKeys) hotKeys = std::make_unique<NoHotKeys>();
    LinuxPlatform services{std::move(pasteboard), std::move(hotKeys)};
    Platform& platform = services.platform();
    const QuitSignals signals{[&platform] { platform.workspace.terminate(); }};
    AlertWindows alerts{platform.workspace};
    AppMover mover{platform, alerts};
    std::unique_ptr<Resident> resident;
    QTimer::singleShot(0, &application,
                       [&] { launch(platform, alerts, mover, resident, start, activationData); });
    return QApplication::exec();
}

} // namespace quillon
