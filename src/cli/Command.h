#pragma once

#include "platform/linux/Desktop.h"

#include <QCoroTask>

#include <string>
#include <string_view>
#include <vector>

namespace quillon {

struct CommandContext;

/// The words behind a command's name.
using Arguments = std::vector<std::string>;

/// How the process ends.
enum ExitCode { exitDone = 0, exitFailed = 1, exitUsage = 2 };

/// Which process carries a command out.
enum class Where {
    dataHolder, ///< the program that stays, where it runs and so holds the data; else this process
    residentOnly,  ///< the program that stays, which is started where it does not run
    hereAfterQuit, ///< this process, once the program that stays has quit
    here,          ///< this process, without the program's objects
};

/// One of the words that may stand behind a command.
struct Word {
    std::string_view text;
    /// Shown by the shells; marked for translation in the context "CommandLine".
    const char* purpose;
    /// With this word the command changes nothing, whatever it does otherwise.
    bool onlyReads = false;
    /// What --help calls the value that follows the word, and the values that there are; without
    /// any it may be anything.
    std::string_view value{};
    std::vector<std::string_view> values{};
    /// With this word the command goes on until the program that stays ends.
    bool follows = false;
};

/// All that the program knows of one command.
struct Command {
    std::string_view name;
    /// One of these may stand behind the name, or before it.
    std::vector<Word> words{};
    bool needsWord = false;
    /// Any number of them may, each once.
    bool takesSeveralWords = false;
    /// Where a number from 1 on may stand in place of a word: what each stands for, as the shells
    /// show it. Null elsewhere.
    std::vector<std::string> (*numbered)() = nullptr;
    /// Any words at all may stand behind the name.
    bool takesAnything = false;
    /// What --help writes behind the name in place of the words, which it lists below then.
    std::string_view usage{};
    /// Whether the words behind the name can be understood, where that takes more than being one of
    /// `words`. The name comes first then. Null elsewhere.
    bool (*understands)(const Arguments&) = nullptr;
    /// Files may stand behind the name.
    bool takesFiles = false;
    /// What the process that was given the words makes of them: it alone knows its working folder
    /// and its standard input. Null where they mean the same to any process.
    Arguments (*prepared)(Arguments) = nullptr;
    /// Whether these words have the command read all of standard input. Null where none do.
    bool (*readsInput)(const Arguments&) = nullptr;
    /// What it asks for on standard input, without echo, marked for translation in the context
    /// "Command"; null where it reads nothing.
    const char* secretPrompt = nullptr;

    Where where = Where::dataHolder;
    bool onlyReads = false;
    DesktopNeeds needs = DesktopNeeds::nothing;
    /// Whether it waits for another process that is at work on the data, or for another command in
    /// the program that stays; else it fails at once.
    bool waitsItsTurn = true;
    /// Where the session bus hangs, it goes on without.
    bool outlastsBus = false;
    /// Works on the program's objects and gives the exit code; throws a TelegramError whose message
    /// is for the user. Null for what the program that stays does in its own way, and for texts.
    QCoro::Task<int> (*action)(CommandContext, Arguments) = nullptr;
    /// What a command prints that runs without the program's objects.
    std::string (*text)(const Arguments&) = nullptr;

    /// As --help and the shells show it, marked for translation in the context "CommandLine"; null
    /// hides the command from both.
    const char* purpose = nullptr;
};

/// All commands, in the order of --help.
[[nodiscard]] const std::vector<Command>& allCommands();

} // namespace quillon
