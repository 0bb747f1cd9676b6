#pragma once

#include "cli/CommandLine.h"

namespace quillon {

/// Carries out one command and gives its exit code: has the program do it that runs already, else
/// builds the program's objects for it. A process has one session at the most.
class Session {
public:
    /// A command that shows a banner is carried out in a child process, so that this returns once
    /// the command is done, while the banner still shows. To be called while the process has one
    /// thread.
    static int run(const Invocation& invocation);
};

} // namespace quillon
