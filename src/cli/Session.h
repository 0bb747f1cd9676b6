#pragma once

#include "cli/CommandLine.h"

namespace quillon {

class Detach;

/// Builds the program's objects for one command, carries it out and gives the exit code. A process
/// has one session at the most.
class Session {
public:
    /// `detach` is told when the command is done but its banner still shows or its sound still
    /// plays.
    static int run(Invocation invocation, Detach& detach);
    /// For commands that show nothing but text.
    static int run(Invocation invocation);
};

} // namespace quillon
