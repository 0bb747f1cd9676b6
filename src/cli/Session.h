#pragma once

#include "cli/CommandLine.h"

namespace quillon {

class Detach;

/// Carries out one command and gives its exit code: has the program do it that runs already, else
/// builds the program's objects for it. A process has one session at the most.
class Session {
public:
    /// `detach` is told when the command is done but its banner still shows or its sound still
    /// plays.
    static int run(Invocation invocation, Detach& detach);
    /// For commands that show nothing but text.
    static int run(Invocation invocation);
};

} // namespace quillon
