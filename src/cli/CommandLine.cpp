#include "cli/CommandLine.h"

#include "base/Translate.h"

#include <algorithm>

namespace quillon {

namespace {

const Command* commandNamed(std::string_view name) {
    const auto row = std::ranges::find(allCommands(), name, &Command::name);
    return row == allCommands().end() ? nullptr : &*row;
}

bool takes(const Command& command, const Arguments& arguments) {
    if (arguments.empty()) return !command.needsWord;
    if (command.takesSeveralWords) {
        const auto once = [&](const std::string& word) {
            return std::ranges::count(arguments, word) == 1 &&
                   std::ranges::find(command.words, word, &Word::text) != command.words.end();
        };
        return std::ranges::all_of(arguments, once);
    }
    return arguments.size() == 1 &&
           std::ranges::find(command.words, arguments.front(), &Word::text) != command.words.end();
}

/// The command that the word at `place` names, with the other words as its arguments; none when it
/// does not take them.
std::optional<Invocation> commandAt(std::size_t place, const std::vector<std::string>& words) {
    const Command* const command = commandNamed(words[place]);
    if (command == nullptr) return std::nullopt;
    Arguments arguments = words;
    arguments.erase(arguments.begin() + static_cast<std::ptrdiff_t>(place));
    const bool understood = command->takesAnything ? place == 0 : takes(*command, arguments);
    if (!understood) return std::nullopt;
    return Invocation{.command = command, .arguments = std::move(arguments)};
}

/// "launch-at-login on|off|status", "status [--json]", "doctor [--json] [--names]"
std::string usage(const Command& command) {
    std::string words;
    for (const Word& word : command.words) {
        if (!words.empty()) words += command.takesSeveralWords ? "] [" : "|";
        words += word.text;
    }
    std::string name{command.name};
    if (words.empty()) return name;
    return name + (command.needsWord ? " " + words : " [" + words + "]");
}

constexpr std::size_t usageWidth = 29;

std::string candidate(std::string_view word, const char* purpose) {
    return std::string{word} + "\t" + translate("CommandLine", purpose) + "\n";
}

} // namespace

bool Invocation::onlyReads() const {
    const auto reads = [this](const Word& word) {
        return word.onlyReads && std::ranges::find(arguments, word.text) != arguments.end();
    };
    return command->onlyReads || std::ranges::any_of(command->words, reads);
}

std::optional<Invocation> parseCommandLine(const std::vector<std::string>& words) {
    // "launch-at-login status" also holds the name of another command, which takes no
    // "launch-at-login".
    for (std::size_t place = 0; place < words.size(); ++place) {
        if (auto invocation = commandAt(place, words)) return invocation;
    }
    return std::nullopt;
}

std::string helpText() {
    std::string text =
        translate("CommandLine",
                  "Quillon sends what you copy to your phone, through your own Telegram bot.\n\n"
                  "Usage: quillon [COMMAND]\n\n"
                  "Without a command it stays, and sends whenever you press its shortcut.\n\n");
    for (const Command& command : allCommands()) {
        if (command.purpose == nullptr) continue;
        std::string words = usage(command);
        words.resize(std::max(usageWidth, words.size()), ' ');
        text += "  " + words + "  " + translate("CommandLine", command.purpose) + "\n";
    }
    return text + "\n" +
           translate("CommandLine",
                     "Exit status: 0 done, 1 failed, 2 the command line was not understood.") +
           "\n";
}

std::string completions(const std::vector<std::string>& words) {
    std::string text;
    if (words.empty()) {
        for (const Command& command : allCommands()) {
            if (command.purpose != nullptr) text += candidate(command.name, command.purpose);
        }
    }
    const Command* const command = words.empty() ? nullptr : commandNamed(words.front());
    if (command != nullptr && (words.size() == 1 || command->takesSeveralWords)) {
        for (const Word& word : command->words) {
            if (std::ranges::find(words, word.text) == words.end())
                text += candidate(word.text, word.purpose);
        }
    }
    return text;
}

} // namespace quillon
