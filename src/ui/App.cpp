#include "ui/App.h"

#include "cli/CommandLine.h"
#include "cli/RemoteProgram.h"
#include "maintenance/AppMover.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"
#include "platform/linux/Desktop.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/QuitSignals.h"
#include "platform/linux/desktop/LinuxAppearance.h"
#include "ui/Resident.h"
#include "ui/alerts/AlertWindows.h"
#include "ui/controls/AppIcon.h"
#include "ui/theme/ApplicationTheme.h"

#include <QApplication>
#include <QThreadPool>
#include <QTimer>

#include <chrono>
#include <iostream>

namespace quillon {

namespace {

/// A bus that is well tells within a few milliseconds which places for an icon there are.
constexpr std::chrono::milliseconds busPatience{50};

/// How long work on the thread pool may hold up the end of the program, in milliseconds.
constexpr int poolPatience = 500;

/// Tells the desktop the program's name, icon and desktop entry.
void introduce() {
    // The display name stays empty: Qt would append it to the title of every window.
    QApplication::setApplicationName(QStringLiteral("Quillon"));
    QApplication::setDesktopFileName(QString::fromLatin1(applicationIdentifier));
    QApplication::setWindowIcon(appIcon());
}

/// Offers the move to Applications, then starts the program unless it has moved.
QCoro::Task<> launch(Platform& platform, Compositor& compositor, Alerts& alerts, AppMover& mover,
                     std::unique_ptr<Resident>& resident, std::string wanted,
                     QVariantMap activationData) {
    if (mover.shouldAsk() && !platform.defaults.flag(AppMover::declinedKey).value_or(false)) {
        const bool moved = co_await mover.ask();
        if (moved) co_return;
    }
    std::unique_ptr<Resident> claimed =
        co_await Resident::claim(platform, compositor, alerts, mover);
    resident = std::move(claimed);
    if (resident) {
        // The icon takes its place before windows are made, which takes longer. A bus that hangs
        // does not hold up the start.
        resident->whenIconSettled(busPatience, [&resident, wanted] { resident->start(wanted); });
        co_return;
    }
    if (wanted.empty()) wanted = "settings";
    const bool shown = RemoteProgram::activate(wanted, activationData);
    if (!shown) std::cerr << FolderLock::heldMessage() << std::endl;
    // There is nothing to clear up, and what comes over the bus during a longer end would find Qt's
    // register of types destroyed.
    platform.workspace.exitNow(shown ? exitDone : exitFailed);
}

} // namespace

int App::run(std::string_view wanted) {
    const QVariantMap activationData = RemoteProgram::activationData();
    std::optional<Desktop> desktop = openDesktop(DesktopNeeds::everything);
    if (!desktop) {
        std::cerr << noDesktopMessage() << std::endl;
        return exitFailed;
    }
    introduce();
    ApplicationTheme theme;
    LinuxAppearance appearance;
    theme.follow(appearance);

    LinuxPlatform services{std::move(desktop->pasteboard), std::move(desktop->hotKeys)};
    Platform& platform = services.platform();
    const QuitSignals signals{[&platform] { platform.workspace.terminate(); }};
    AlertWindows alerts{platform.workspace};
    AppMover mover{platform, alerts};
    std::unique_ptr<Resident> resident;
    QTimer::singleShot(0, desktop->application.get(), [&] {
        launch(platform, *desktop->compositor, alerts, mover, resident, std::string{wanted},
               activationData);
    });
    const int code = QApplication::exec();
    resident.reset();
    // The application's destructor would wait for work that may never end, as on a mount that
    // hangs.
    if (!QThreadPool::globalInstance()->waitForDone(poolPatience)) platform.workspace.exitNow(code);
    return code;
}

} // namespace quillon
