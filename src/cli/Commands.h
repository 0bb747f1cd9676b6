#pragma once

#include "cli/CommandLine.h"

#include <memory>

namespace quillon {

class Analytics;
class Console;
class Store;
struct Platform;
class SpokenBanner;

/// What a command works on, and where it says what; all of it outlives the command.
struct CommandContext {
    Platform& platform;
    Analytics& analytics;
    Store& store;
    /// The banner that the store shows.
    SpokenBanner& banner;
    std::shared_ptr<Console> console;
};

/// Carries out a command that has an action, and gives the exit code. What failed is told as error
/// output in the very sentence the windows would show.
[[nodiscard]] QCoro::Task<int> runCommand(Invocation invocation, CommandContext context);

} // namespace quillon
