#pragma once

#include "cli/CommandLine.h"

#include <memory>

namespace quillon {

class Console;
struct Core;
struct Platform;

/// What a command works on, and where it says what; all of it outlives the command.
struct CommandContext {
    Platform& platform;
    Core& core;
    std::shared_ptr<Console> console;
};

/// Carries out a command that has an action, and gives the exit code. What failed is told as error
/// output in the very sentence the windows would show.
[[nodiscard]] QCoro::Task<int> runCommand(Invocation invocation, CommandContext context);

} // namespace quillon
