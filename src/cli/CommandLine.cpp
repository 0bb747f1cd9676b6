#include "cli/CommandLine.h"

#include "base/Translate.h"

#include <algorithm>

namespace quillon {

namespace {

using Words = std::vector<std::string_view>;

struct Row {
    std::string_view name;
    Command command;
    /// What may follow the command.
    Words arguments{};
    bool needsArgument = false;
    /// Works on what the running program holds, which then carries it out.
    bool worksOnState = true;
    const char* purpose;
};

const std::vector<Row> rows{
    {.name = "send",
     .command = Command::send,
     .purpose = QT_TRANSLATE_NOOP("CommandLine", "send what is on the clipboard")},
    {.name = "panel",
     .command = Command::panel,
     .worksOnState = false,
     .purpose =
         QT_TRANSLATE_NOOP("CommandLine", "show the panel; starts Quillon if it is not running")},
    {.name = "settings",
     .command = Command::settings,
     .worksOnState = false,
     .purpose = QT_TRANSLATE_NOOP("CommandLine",
                                  "show the settings; starts Quillon if it is not running")},
    {.name = "connect",
     .command = Command::connect,
     .purpose =
         QT_TRANSLATE_NOOP("CommandLine", "connect your bot; reads its token from standard input")},
    {.name = "find-group",
     .command = Command::findGroup,
     .purpose = QT_TRANSLATE_NOOP("CommandLine", "find the group in which you wrote to the bot")},
    {.name = "create-topics",
     .command = Command::createTopics,
     .purpose = QT_TRANSLATE_NOOP("CommandLine", "create the four topics, or find them again")},
    {.name = "rename-topics",
     .command = Command::renameTopics,
     .purpose = QT_TRANSLATE_NOOP("CommandLine", "give the topics the names set here")},
    {.name = "forget",
     .command = Command::forget,
     .purpose = QT_TRANSLATE_NOOP("CommandLine", "forget the bot, the group and the topics")},
    {.name = "status",
     .command = Command::status,
     .arguments = {"--json"},
     .purpose = QT_TRANSLATE_NOOP("CommandLine", "tell what is set up")},
    {.name = "history",
     .command = Command::history,
     .arguments = {"--json"},
     .purpose = QT_TRANSLATE_NOOP("CommandLine", "list what was sent, newest first")},
    {.name = "launch-at-login",
     .command = Command::launchAtLogin,
     .arguments = {"on", "off", "status"},
     .needsArgument = true,
     .purpose = QT_TRANSLATE_NOOP("CommandLine", "open Quillon at login, or do not")},
    {.name = "check-for-updates",
     .command = Command::checkForUpdates,
     .arguments = {"--install"},
     .purpose =
         QT_TRANSLATE_NOOP("CommandLine", "tell whether there is a newer version; install it")},
    {.name = "uninstall",
     .command = Command::uninstall,
     .arguments = {"--yes"},
     .needsArgument = true,
     .worksOnState = false,
     .purpose = QT_TRANSLATE_NOOP("CommandLine", "remove Quillon and all it has stored")},
    {.name = "--help",
     .command = Command::help,
     .worksOnState = false,
     .purpose = QT_TRANSLATE_NOOP("CommandLine", "print this")},
    {.name = "--version",
     .command = Command::version,
     .worksOnState = false,
     .purpose = QT_TRANSLATE_NOOP("CommandLine", "print the version")},
};

/// The command of this word with the others as what follows it; none where they make no such
/// command.
std::optional<Invocation> commandAt(std::size_t place, const std::vector<std::string>& words) {
    const auto row = std::ranges::find(rows, words[place], &Row::name);
    if (row == rows.end()) return std::nullopt;
    Invocation invocation{.command = row->command, .argument = {}};
    for (std::size_t other = 0; other < words.size(); ++other) {
        if (other == place) continue;
        if (std::ranges::find(row->arguments, words[other]) == row->arguments.end())
            return std::nullopt;
        invocation.argument = words[other];
    }
    if (row->needsArgument && invocation.argument.empty()) return std::nullopt;
    return invocation;
}

/// "launch-at-login on|off|status", "status [--json]"
std::string usage(const Row& row) {
    std::string words;
    for (const std::string_view argument : row.arguments) {
        if (!words.empty()) words += '|';
        words += argument;
    }
    if (words.empty()) return std::string{row.name};
    return std::string{row.name} + (row.needsArgument ? " " + words : " [" + words + "]");
}

constexpr std::size_t usageWidth = 29;

} // namespace

std::optional<Invocation> parseCommandLine(const std::vector<std::string>& arguments) {
    if (arguments.size() > 2) return std::nullopt;
    // What follows one command may be the name of another.
    for (std::size_t place = 0; place < arguments.size(); ++place) {
        if (auto invocation = commandAt(place, arguments)) return invocation;
    }
    return std::nullopt;
}

std::string_view commandName(Command command) {
    return std::ranges::find(rows, command, &Row::command)->name;
}

bool worksOnState(Command command) {
    return std::ranges::find(rows, command, &Row::command)->worksOnState;
}

std::string helpText() {
    std::string text =
        translate("CommandLine",
                  "Quillon sends what you copy to your phone, through your own Telegram bot.\n\n"
                  "Usage: quillon [COMMAND]\n\n"
                  "Without a command it stays, and sends whenever you press its shortcut.\n\n");
    for (const Row& row : rows) {
        std::string words = usage(row);
        words.resize(std::max(usageWidth, words.size()), ' ');
        text += "  " + words + "  " + translate("CommandLine", row.purpose) + "\n";
    }
    return text + "\n" +
           translate("CommandLine",
                     "Exit status: 0 done, 1 failed, 2 the command line was not understood.") +
           "\n";
}

} // namespace quillon
