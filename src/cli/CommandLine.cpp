#include "cli/CommandLine.h"

#include <algorithm>
#include <array>

namespace quillon {

namespace {

struct Row {
    std::string_view name;
    Command command;
    bool answersJson;
    std::string_view purpose;
};

constexpr std::array rows{
    Row{"send", Command::send, false, "send what is on the clipboard"},
    Row{"connect", Command::connect, false,
        "connect your bot; reads its token from standard input"},
    Row{"find-group", Command::findGroup, false, "find the group in which you wrote to the bot"},
    Row{"create-topics", Command::createTopics, false,
        "create the four topics, or find them again"},
    Row{"rename-topics", Command::renameTopics, false, "give the topics the names set here"},
    Row{"forget", Command::forget, false, "forget the bot, the group and the topics"},
    Row{"status", Command::status, true, "tell what is set up"},
    Row{"history", Command::history, true, "list what was sent, newest first"},
    Row{"--help", Command::help, false, "print this"},
    Row{"--version", Command::version, false, "print the version"},
};

constexpr std::string_view jsonOption = "--json";
constexpr std::size_t nameWidth = 18;

} // namespace

std::optional<Invocation> parseCommandLine(const std::vector<std::string>& arguments) {
    std::optional<Invocation> invocation;
    bool json = false;
    bool answersJson = false;
    for (const std::string& argument : arguments) {
        if (argument == jsonOption) {
            json = true;
            continue;
        }
        const auto row = std::ranges::find(rows, argument, &Row::name);
        if (row == rows.end() || invocation) return std::nullopt;
        invocation = Invocation{.command = row->command};
        answersJson = row->answersJson;
    }
    if (!invocation || (json && !answersJson)) return std::nullopt;
    invocation->json = json;
    return invocation;
}

std::string helpText() {
    std::string text =
        "Quillon sends what you copy to your phone, through your own Telegram bot.\n\n"
        "Usage: quillon COMMAND\n\n";
    for (const Row& row : rows) {
        std::string name{row.name};
        if (row.answersJson) name += " [--json]";
        name.resize(std::max(nameWidth, name.size()), ' ');
        text += "  " + name + "  " + std::string{row.purpose} + "\n";
    }
    return text + "\nExit status: 0 done, 1 failed, 2 the command line was not understood.\n";
}

} // namespace quillon
