#pragma once

namespace quillon {

/// The program that stays: it waits for the shortcut, and for its day's other work.
class App {
public:
    enum class Start {
        quiet,        ///< with the settings window while the setup is not finished
        withSettings, ///< with the settings window in any case
        withPanel,    ///< with the panel
    };

    /// Builds the program's objects, runs to the end and gives the exit code.
    static int run(Start start = Start::quiet);
};

} // namespace quillon
