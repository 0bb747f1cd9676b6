#include "cli/Session.h"

#include "base/Translate.h"
#include "cli/Commands.h"
#include "cli/Detach.h"
#include "cli/RemoteProgram.h"
#include "cli/StandardInput.h"
#include "cli/TerminalConsole.h"
#include "core/Core.h"
#include "core/DataLock.h"
#include "platform/Clock.h"
#include "platform/Sleep.h"
#include "platform/linux/Application.h"
#include "platform/linux/Desktop.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/SessionBusCheck.h"
#include "platform/linux/desktop/LinuxAppearance.h"
#include "send/ItemSend.h"
#include "ui/theme/ApplicationTheme.h"

#include <QTimer>

#include <algorithm>
#include <tuple>

namespace quillon {

namespace {

using namespace std::chrono_literals;

/// A bus that is well greets within milliseconds.
constexpr auto busPatience = 2s;

/// What the banner looks like on this desktop, and whether it moves.
struct Look {
    Look() { theme.follow(appearance); }

    ApplicationTheme theme;
    LinuxAppearance appearance;
};

bool showsBanner(const Core& core) {
    return core.hud && core.hud->visible();
}

/// Carries the command out and gives its exit code. `detach`, where not null, is told when the
/// command is done while its banner still shows or its sound still plays.
QCoro::Task<int> carryOut(Invocation invocation, Platform& platform, const Compositor* compositor,
                          Detach* detach) {
    std::optional<FolderLock> lock;
    if (!invocation.onlyReads()) {
        const auto patience = invocation.command->waitsItsTurn ? dataLockPatience : 0ms;
        lock = co_await takeDataLock(platform, patience);
        if (!lock) {
            Terminal::printError(FolderLock::heldMessage());
            co_return exitFailed;
        }
    }
    Core core{platform, compositor};
    const CommandContext context{platform, core, std::make_shared<TerminalConsole>()};
    int code = co_await runCommand(invocation, context);
    code = Terminal::settled(code);
    lock.reset();
    if (detach == nullptr) co_return code;
    if (showsBanner(core) || core.store.config().playSound) detach->release(code);
    while (showsBanner(core)) {
        co_await sleep(platform.clock, 50ms);
    }
    co_return code;
}

QCoro::Task<> runToExit(Invocation invocation, Platform& platform, const Compositor* compositor,
                        Detach* detach) {
    const int code = co_await carryOut(std::move(invocation), platform, compositor, detach);
    QCoreApplication::exit(code);
}

/// Whether what it sends stands on the command line, or comes by standard input.
bool bringsContent(const Invocation& invocation) {
    const auto isOption = [](const std::string& word) {
        return word.starts_with("--") && word != "--";
    };
    return invocation.command->takesFiles && !std::ranges::all_of(invocation.arguments, isOption);
}

int runInThisProcess(const Invocation& invocation, Detach* detach) {
    if (invocation.command->outlastsBus && !sessionBusAnswers(busPatience)) doWithoutSessionBus();
    if (const auto code = RemoteProgram::run(invocation)) return *code;
    std::optional<Desktop> desktop = openDesktop(invocation.command->needs);
    // What is given needs no clipboard, and goes out without a banner then.
    if (!desktop && bringsContent(invocation)) desktop = openDesktop(DesktopNeeds::nothing);
    if (!desktop) {
        Terminal::printError(noDesktopMessage());
        return exitFailed;
    }
    std::optional<Look> look;
    if (desktop->compositor) look.emplace();
    LinuxPlatform services{std::move(desktop->pasteboard), std::move(desktop->hotKeys)};
    QTimer::singleShot(0, desktop->application.get(), [&] {
        runToExit(invocation, services.platform(), desktop->compositor.get(), detach);
    });
    const int code = QCoreApplication::exec();
    // A detached process ends without destroying it: where no banner was shown, Qt would look
    // through all fonts of the system only to let go of them.
    if (detach != nullptr) std::ignore = desktop->application.release();
    return code;
}

int unreadable() {
    const auto speaker = makeApplication<QCoreApplication>();
    Terminal::printError(translate("Command", "Standard input could not be read."));
    return exitFailed;
}

} // namespace

int runInSession(Invocation invocation) {
    const Command& command = *invocation.command;
    if (command.prepared) invocation.arguments = command.prepared(std::move(invocation.arguments));
    // Before anything waits for this process: input may take its time, or never end.
    if (invocation.readsInput() && !StandardInput::hold(maximumFileSize + 1)) return unreadable();
    if (invocation.command->needs == DesktopNeeds::nothing)
        return runInThisProcess(invocation, nullptr);
    return Detach::run([&](Detach& detach) { return runInThisProcess(invocation, &detach); });
}

} // namespace quillon
