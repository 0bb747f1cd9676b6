#pragma once

#include "base/Translate.h"

#include <memory>

namespace quillon {

/// The application object of this process, QCoreApplication or QApplication, which speaks the
/// user's language. There is one at a time. It is not given the command line, which Qt would take
/// its own options from.
template <typename Application>
[[nodiscard]] std::unique_ptr<Application> makeApplication() {
    // Qt keeps references to them.
    static int argc = 1;
    static char name[] = "quillon";
    static char* argv[] = {name, nullptr};
    auto application = std::make_unique<Application>(argc, argv);
    loadCatalogue();
    return application;
}

} // namespace quillon
