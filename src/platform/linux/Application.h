#pragma once

#include "base/Translate.h"

#include <memory>

namespace quillon {

/// The application object of this process, QCoreApplication or QApplication, which speaks the
/// user's language. There is one at a time. It is not given the command line, which Qt would take
/// its own options from. With `onX11` its windows are on the X server, even if the desktop offers
/// Wayland as well; an environment variable that says so would reach the programs that it starts.
template <typename Application>
[[nodiscard]] std::unique_ptr<Application> makeApplication(bool onX11 = false) {
    // Qt keeps references to them.
    static char name[] = "quillon";
    static char option[] = "-platform";
    static char platform[] = "xcb";
    static char* argv[] = {name, nullptr, nullptr, nullptr};
    static int argc = 1;
    argc = onX11 ? 3 : 1;
    argv[1] = onX11 ? option : nullptr;
    argv[2] = onX11 ? platform : nullptr;
    auto application = std::make_unique<Application>(argc, argv);
    loadCatalogue();
    return application;
}

} // namespace quillon
