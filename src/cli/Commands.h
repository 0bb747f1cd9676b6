#pragma once

#include "cli/CommandLine.h"

#include <QCoroTask>

#include <functional>

namespace quillon {

class Analytics;
class Store;
struct Platform;
class SpokenBanner;

/// What a command works on; all of it outlives the command.
struct CommandContext {
    Platform& platform;
    Analytics& analytics;
    Store& store;
    /// The banner that the store shows.
    SpokenBanner& banner;
};

/// Carries out a command that works on the store, and gives the exit code. What failed is told on
/// standard error in the very sentence the windows would show.
[[nodiscard]] QCoro::Task<int> runCommand(Invocation invocation, CommandContext context);

} // namespace quillon
