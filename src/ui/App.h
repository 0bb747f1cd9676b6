#pragma once

namespace quillon {

/// The program that stays: it waits for the shortcut, and for its day's other work.
class App {
public:
    /// Builds the program's objects, runs to the end and gives the exit code.
    static int run();
};

} // namespace quillon
