#pragma once

#include <string_view>

namespace quillon {

/// The program that stays: it waits for the shortcut and for the user.
class App {
public:
    /// Builds the program's objects, runs to the end and gives the exit code. It begins with the
    /// "panel" or the "settings" when these are `wanted`, else with the settings window as long as
    /// the setup is not finished.
    static int run(std::string_view wanted = {});
};

} // namespace quillon
