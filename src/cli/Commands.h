#pragma once

#include "cli/CommandLine.h"

#include <memory>
#include <stop_token>

namespace quillon {

class Console;
struct Core;
struct Platform;

/// What a command works on, and where it prints and reads. All of it outlives the command.
struct CommandContext {
    Platform& platform;
    Core& core;
    std::shared_ptr<Console> console;
    /// Asks the command to leave what it has not begun; whoever gave it does not wait any more.
    std::stop_token stop{};
    /// Whether this is the program that stays.
    bool stays = false;
};

/// Carries out a command that has an action, and gives the exit code. A failure is printed as error
/// output, in the sentence that the windows show.
[[nodiscard]] QCoro::Task<int> runCommand(Invocation invocation, CommandContext context);

} // namespace quillon
