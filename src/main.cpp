#include "base/Translate.h"
#include "cli/CommandLine.h"
#include "cli/RemoteProgram.h"
#include "cli/Session.h"
#include "cli/Terminal.h"
#include "platform/linux/Hardening.h"
#include "platform/linux/desktop/RunningPrograms.h"
#include "ui/App.h"

#include <QCoreApplication>

#include <csignal>

namespace {

/// In the user's language, which takes an application object.
std::string textOf(const quillon::Invocation& invocation, int argc, char** argv) {
    const QCoreApplication application{argc, argv};
    quillon::loadCatalogue();
    return invocation.command->text(invocation.arguments);
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
        Terminal::printErrorText(textOf(*parseCommandLine({"--help"}), argc, argv));
        return exitUsage;
    }
    switch (invocation->command->where) {
    case Where::here:
        Terminal::printText(textOf(*invocation, argc, argv));
        return exitDone;
    case Where::residentOnly:
        if (const auto code = RemoteProgram::run(*invocation)) return *code;
        runByAbsolutePath(argv);
        return App::run(invocation->command->name);
    case Where::dataHolder:
    case Where::hereAfterQuit:
        break;
    }
    return Session::run(*invocation);
}
