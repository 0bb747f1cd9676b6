#include "cli/CommandLine.h"
#include "cli/RemoteProgram.h"
#include "cli/Session.h"
#include "cli/StandardInput.h"
#include "cli/Terminal.h"
#include "platform/linux/Application.h"
#include "platform/linux/Hardening.h"
#include "platform/linux/desktop/RunningPrograms.h"
#include "ui/App.h"

#include <QCoreApplication>

#include <csignal>

namespace {

std::string textOf(const quillon::Invocation& invocation) {
    // Translates the text.
    const auto application = quillon::makeApplication<QCoreApplication>();
    return invocation.command->text(invocation.arguments);
}

} // namespace

int main(int argc, char** argv) {
    using namespace quillon;
    keepOutOfCoreDumps();
    std::signal(SIGPIPE, SIG_IGN);
    StandardInput::ensure();

    if (argc == 1) {
        runByAbsolutePath(argv);
        return App::run();
    }
    const auto invocation = parseCommandLine({argv + 1, argv + argc});
    if (!invocation) {
        Terminal::printErrorText(textOf(*parseCommandLine({"--help"})));
        return exitUsage;
    }
    switch (invocation->command->where) {
    case Where::here:
        Terminal::printText(textOf(*invocation));
        return Terminal::settled(exitDone);
    case Where::residentOnly:
        if (const auto code = RemoteProgram::run(*invocation)) Terminal::exitNow(*code);
        runByAbsolutePath(argv);
        return App::run(invocation->command->name);
    case Where::dataHolder:
    case Where::hereAfterQuit:
        break;
    }
    Terminal::exitNow(runInSession(*invocation));
}
