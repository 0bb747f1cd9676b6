#pragma once

#include "base/Translate.h"

#include <memory>
#include <string>

namespace quillon {

/// The application object of this process, QCoreApplication or QApplication, which speaks the
/// user's language. There is one at a time. It is not given the command line, which Qt would take
/// its own options from. `platform` names Qt's way to the display, such as "xcb" (null: as Qt
/// chooses); an environment variable that says so would reach the programs that it starts.
template <typename Application>
[[nodiscard]] std::unique_ptr<Application> makeApplication(const char* platform = nullptr) {
    // Qt keeps references to them.
    static char name[] = "quillon";
    static char option[] = "-platform";
    static std::string chosen;
    static char* argv[] = {name, nullptr, nullptr, nullptr};
    static int argc = 1;
    chosen = platform != nullptr ? platform : "";
    argc = chosen.empty() ? 1 : 3;
    argv[1] = chosen.empty() ? nullptr : option;
    argv[2] = chosen.empty() ? nullptr : chosen.data();
    auto application = std::make_unique<Application>(argc, argv);
    loadCatalogue();
    return application;
}

} // namespace quillon
