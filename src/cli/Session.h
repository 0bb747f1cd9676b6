#pragma once

#include "cli/CommandLine.h"

namespace quillon {

/// Carries out one command, for which it reads standard input first if the command sends what is
/// there, and gives its exit code. The program that already runs does it if there
/// is one; else this process builds the program's objects. A command that shows a banner is carried
/// out in a child process, so that this returns once the command is done, while the banner still
/// shows. Call it once at the most, and while the process has one thread.
[[nodiscard]] int runInSession(Invocation invocation);

} // namespace quillon
