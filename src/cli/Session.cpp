#include "cli/Session.h"

#include "analytics/Analytics.h"
#include "base/Translate.h"
#include "cli/Commands.h"
#include "cli/Detach.h"
#include "cli/RemoteProgram.h"
#include "cli/SpokenBanner.h"
#include "cli/TerminalConsole.h"
#include "desktop/HUD.h"
#include "desktop/HUDPanel.h"
#include "platform/EmptyPasteboard.h"
#include "platform/FileSystem.h"
#include "platform/Sleep.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/files/FolderLock.h"
#include "platform/linux/x11/X11Compositor.h"
#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/X11Pasteboard.h"
#include "state/Store.h"

#include <QApplication>
#include <QTimer>

namespace quillon {

namespace {

using namespace std::chrono_literals;

/// Longer than another command takes, unless the network makes it wait.
constexpr std::chrono::milliseconds lockPatience = 5s;

bool isVisible(const HUD& hud) {
    return hud.panel() != nullptr && hud.panel()->isVisible();
}

QCoro::Task<> untilHidden(const HUD& hud, Clock& clock) {
    while (isVisible(hud)) {
        co_await sleep(clock, 50ms);
    }
}

QCoro::Task<> runToExit(Invocation invocation, CommandContext context) {
    const int code = co_await runCommand(invocation, context);
    QCoreApplication::exit(code);
}

QCoro::Task<> sendToExit(Invocation invocation, CommandContext context, const HUD& hud,
                         FolderLock& lock, Detach& detach) {
    const int code = co_await runCommand(invocation, context);
    lock.release();
    // What is still to be seen or heard is no reason to keep the terminal.
    if (isVisible(hud) || context.store.config().playSound) detach.release(code);
    co_await untilHidden(hud, context.platform.clock);
    QCoreApplication::exit(code);
}

int runDetached(Invocation invocation, Detach& detach) {
    if (const auto code = RemoteProgram::run(invocation)) return *code;
    static int argc = 1;
    static char name[] = "quillon";
    static char* argv[] = {name, nullptr};
    std::unique_ptr<Pasteboard> pasteboard = X11Pasteboard::open(nullptr);
    if (!pasteboard) {
        const QCoreApplication speaker{argc, argv};
        loadCatalogue();
        Terminal::printError(
            translate("Session", "There is no clipboard to read: no X server answers."));
        return exitFailed;
    }
    preferX11();
    // Never destroyed, for it goes with the process: where no banner was shown, Qt would look
    // through all fonts of the system only to let go of them.
    [[maybe_unused]] const auto* application = new QApplication{argc, argv};
    loadCatalogue();
    QApplication::setQuitOnLastWindowClosed(false);

    LinuxPlatform services{std::move(pasteboard)};
    Platform& platform = services.platform();
    platform.files.createFolder(platform.dataFolder);
    auto lock = FolderLock::take(platform.dataFolder);
    if (!lock) {
        Terminal::printError(FolderLock::heldMessage());
        return exitFailed;
    }
    Analytics analytics{platform};
    const X11Compositor compositor;
    Store* settings = nullptr;
    HUD hud{platform.clock, compositor, [&settings] { return settings->config().bannerPosition; }};
    SpokenBanner banner{&hud};
    const auto console = std::make_shared<TerminalConsole>();
    Store store{platform, analytics, banner};
    settings = &store;

    QTimer::singleShot(0, &store, [&] {
        sendToExit(invocation, {platform, analytics, store, banner, console}, hud, *lock, detach);
    });
    return QApplication::exec();
}

} // namespace

int Session::run(Invocation invocation) {
    if (invocation.command->needs == Needs::clipboardAndBanner)
        return Detach::run([&](Detach& detach) { return runDetached(invocation, detach); });
    if (const auto code = RemoteProgram::run(invocation)) return *code;
    int argc = 1;
    char name[] = "quillon";
    char* argv[] = {name, nullptr};
    QCoreApplication application{argc, argv};
    loadCatalogue();
    LinuxPlatform services{std::make_unique<EmptyPasteboard>()};
    Platform& platform = services.platform();
    platform.files.createFolder(platform.dataFolder);
    const bool reads = invocation.onlyReads();
    const auto lock =
        reads ? std::optional<FolderLock>{} : FolderLock::take(platform.dataFolder, lockPatience);
    if (!lock && !reads) {
        Terminal::printError(FolderLock::heldMessage());
        return exitFailed;
    }
    Analytics analytics{platform};
    SpokenBanner banner{nullptr};
    const auto console = std::make_shared<TerminalConsole>();
    Store store{platform, analytics, banner};

    QTimer::singleShot(0, &store, [&] {
        runToExit(invocation, {platform, analytics, store, banner, console});
    });
    return QCoreApplication::exec();
}

} // namespace quillon
