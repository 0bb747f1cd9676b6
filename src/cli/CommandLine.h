#pragma once

#include "cli/Command.h"

#include <optional>
#include <string_view>

namespace quillon {

/// A command line that was understood.
struct Invocation {
    /// A row of allCommands().
    const Command* command;
    Arguments arguments{};

    /// Whether it leaves the program's data as they are.
    [[nodiscard]] bool onlyReads() const;
    /// Whether it goes on until the program that stays ends.
    [[nodiscard]] bool follows() const;
    /// Whether it has the command read all of standard input.
    [[nodiscard]] bool readsInput() const;
    bool operator==(const Invocation&) const = default;
};

/// The number from 1 on that this word is; none for any other word.
[[nodiscard]] std::optional<std::size_t> numberOf(std::string_view word);

/// Stands among the completions for the names of files.
inline constexpr std::string_view filesCandidate = "FILE";

/// Reads the words after the program's name; none when they make no command. Words of which the
/// first is an absolute path are files to send, as desktops hand them to a program.
[[nodiscard]] std::optional<Invocation> parseCommandLine(const std::vector<std::string>& words);

/// What --help prints.
[[nodiscard]] std::string helpText();

/// What may stand behind these words, which follow the program's name: a line each, the word and
/// its purpose with a tab between.
[[nodiscard]] std::string completions(const std::vector<std::string>& words);

} // namespace quillon
