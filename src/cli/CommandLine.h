#pragma once

#include "cli/Command.h"

#include <optional>

namespace quillon {

/// A command line that was understood.
struct Invocation {
    /// A row of allCommands().
    const Command* command;
    Arguments arguments{};

    /// Whether it leaves the program's data as they are.
    [[nodiscard]] bool onlyReads() const;
    bool operator==(const Invocation&) const = default;
};

/// Reads the words after the program's name; none when they make no command.
[[nodiscard]] std::optional<Invocation> parseCommandLine(const std::vector<std::string>& words);

/// What --help prints.
[[nodiscard]] std::string helpText();

/// What may stand behind these words, which follow the program's name: a line each, the word and
/// its purpose with a tab between.
[[nodiscard]] std::string completions(const std::vector<std::string>& words);

} // namespace quillon
