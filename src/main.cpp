#include "base/Translate.h"
#include "cli/CommandLine.h"
#include "cli/Detach.h"
#include "cli/RemoteProgram.h"
#include "cli/Session.h"
#include "cli/Terminal.h"
#include "platform/linux/Hardening.h"
#include "platform/linux/desktop/LinuxBundle.h"
#include "platform/linux/desktop/RunningPrograms.h"
#include "ui/App.h"

#include <QCoreApplication>

#include <csignal>

namespace {

/// In the user's language, which takes an application object.
std::string help(int argc, char** argv) {
    const QCoreApplication application{argc, argv};
    quillon::loadCatalogue();
    return quillon::helpText();
}

} // namespace

int main(int argc, char** argv) {
    using namespace quillon;
    keepOutOfCoreDumps();
    std::signal(SIGPIPE, SIG_IGN);

    if (argc == 1) {
        runByAbsolutePath(argv);
        return App::run();
    }
    const auto invocation = parseCommandLine({argv + 1, argv + argc});
    if (!invocation) {
        Terminal::printErrorText(help(argc, argv));
        return exitUsage;
    }
    switch (invocation->command) {
    case Command::help:
        Terminal::printText(help(argc, argv));
        return exitDone;
    case Command::version:
        Terminal::print("quillon " + runningBundle().shortVersion());
        return exitDone;
    case Command::settings:
    case Command::panel:
        if (const auto code = RemoteProgram::run(*invocation)) return *code;
        runByAbsolutePath(argv);
        return App::run(invocation->command == Command::panel ? App::Start::withPanel
                                                              : App::Start::withSettings);
    case Command::send:
        return Detach::run([&](Detach& detach) { return Session::run(*invocation, detach); });
    default:
        return Session::run(*invocation);
    }
}
