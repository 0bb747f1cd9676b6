#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// What the program can be asked for on the command line.
enum class Command {
    send,
    settings,
    panel,
    connect,
    findGroup,
    createTopics,
    renameTopics,
    forget,
    status,
    history,
    launchAtLogin,
    checkForUpdates,
    uninstall,
    help,
    version
};

/// A command line that was understood.
struct Invocation {
    Command command = Command::help;
    /// What follows the command, one of the words it takes; empty for nothing.
    std::string argument;

    /// The answer is wanted as JSON.
    [[nodiscard]] bool json() const { return argument == "--json"; }
    bool operator==(const Invocation&) const = default;
};

/// How the process ends.
enum ExitCode { exitDone = 0, exitFailed = 1, exitUsage = 2 };

/// Reads the arguments after the program's name; none when they make no command.
[[nodiscard]] std::optional<Invocation> parseCommandLine(const std::vector<std::string>& arguments);

/// The word that makes the command.
[[nodiscard]] std::string_view commandName(Command command);

/// Whether the command works on the program's state, which a program that runs has in its hands.
[[nodiscard]] bool worksOnState(Command command);

/// What --help prints.
[[nodiscard]] std::string helpText();

} // namespace quillon
