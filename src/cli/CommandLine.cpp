#include "cli/CommandLine.h"

#include "base/Translate.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace quillon {

namespace {

const Command* commandNamed(std::string_view name) {
    const auto row = std::ranges::find(allCommands(), name, &Command::name);
    return row == allCommands().end() ? nullptr : &*row;
}

bool takes(const Command& command, const Arguments& arguments) {
    if (command.understands) return command.understands(arguments);
    if (arguments.empty()) return !command.needsWord;
    if (command.takesSeveralWords) {
        const auto once = [&](const std::string& word) {
            return std::ranges::count(arguments, word) == 1 &&
                   std::ranges::find(command.words, word, &Word::text) != command.words.end();
        };
        return std::ranges::all_of(arguments, once);
    }
    if (arguments.size() > 1) return false;
    if (command.numbered && numberOf(arguments.front())) return true;
    return std::ranges::find(command.words, arguments.front(), &Word::text) != command.words.end();
}

/// The command that the word at `place` names, with the other words as its arguments; none when it
/// does not take them.
std::optional<Invocation> commandAt(std::size_t place, const std::vector<std::string>& words) {
    const Command* const command = commandNamed(words[place]);
    if (command == nullptr) return std::nullopt;
    Arguments arguments = words;
    arguments.erase(arguments.begin() + static_cast<std::ptrdiff_t>(place));
    if ((command->takesAnything || command->understands) && place > 0) return std::nullopt;
    if (!command->takesAnything && !takes(*command, arguments)) return std::nullopt;
    return Invocation{.command = command, .arguments = std::move(arguments)};
}

/// "launch-at-login on|off|status", "status [--json]", "doctor [--json] [--names]"
std::string usage(const Command& command) {
    std::string words;
    for (const Word& word : command.words) {
        if (!words.empty()) words += command.takesSeveralWords ? "] [" : "|";
        words += word.text;
    }
    if (command.numbered) words += "|NUMBER";
    std::string name{command.name};
    if (!command.usage.empty()) return name + ' ' + std::string{command.usage};
    if (words.empty()) return name;
    return name + (command.needsWord ? " " + words : " [" + words + "]");
}

constexpr std::size_t usageWidth = 29;

/// A line of --help.
std::string helpLine(std::string words, const char* purpose) {
    words.resize(std::max(usageWidth, words.size()), ' ');
    return "  " + words + "  " + translate("CommandLine", purpose) + "\n";
}

std::string helpOn(const Command& command) {
    std::string text = helpLine(usage(command), command.purpose);
    if (command.usage.empty()) return text;
    for (const Word& word : command.words)
        text +=
            helpLine("  " + std::string{word.text} + ' ' + std::string{word.value}, word.purpose);
    return text;
}

std::string candidate(std::string_view word, const char* purpose) {
    return std::string{word} + "\t" + translate("CommandLine", purpose) + "\n";
}

std::string numbersOf(const Command& command) {
    std::string text;
    std::size_t number = 0;
    for (const std::string& meaning : command.numbered())
        text += std::to_string(++number) + "\t" + meaning + "\n";
    return text;
}

std::string valuesOf(const Word& word) {
    std::string text;
    for (const std::string_view value : word.values)
        text += candidate(value, word.purpose);
    return text;
}

/// Whether no option may follow any more.
bool hasEnded(const std::vector<std::string>& words) {
    return std::ranges::find(words, "--") != words.end();
}

/// Whether one of the words with this property is among the arguments.
bool hasWord(const Invocation& invocation, bool Word::*property) {
    const Arguments& arguments = invocation.arguments;
    return std::ranges::any_of(invocation.command->words, [&](const Word& word) {
        return word.*property && std::ranges::find(arguments, word.text) != arguments.end();
    });
}

} // namespace

std::optional<std::size_t> numberOf(std::string_view word) {
    std::size_t number = 0;
    const char* const end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, number);
    if (error != std::errc{} || stop != end || number == 0) return std::nullopt;
    return number;
}

bool Invocation::onlyReads() const {
    return command->onlyReads || hasWord(*this, &Word::onlyReads);
}

bool Invocation::follows() const {
    return hasWord(*this, &Word::follows);
}

bool Invocation::readsInput() const {
    return command->readsInput && command->readsInput(arguments);
}

std::optional<Invocation> parseCommandLine(const std::vector<std::string>& words) {
    if (!words.empty() && words.front().starts_with('/')) {
        Arguments files = words;
        files.insert(files.begin(), "--");
        return Invocation{.command = commandNamed("send"), .arguments = std::move(files)};
    }
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
        text += helpOn(command);
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
    if (command == nullptr) return text;
    const auto begun = std::ranges::find(command->words, words.back(), &Word::text);
    if (begun != command->words.end() && !begun->value.empty()) return valuesOf(*begun);
    if (words.size() == 1 || command->takesSeveralWords ||
        (command->takesFiles && !hasEnded(words))) {
        for (const Word& word : command->words) {
            if (std::ranges::find(words, word.text) == words.end())
                text += candidate(word.text, word.purpose);
        }
    }
    if (command->numbered && words.size() == 1) text += numbersOf(*command);
    if (command->takesFiles)
        text += candidate(filesCandidate, QT_TRANSLATE_NOOP("CommandLine", "a file to send"));
    return text;
}

} // namespace quillon
