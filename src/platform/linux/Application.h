#pragma once

#include "base/Translate.h"

#include <memory>
#include <string>
#include <utility>

namespace quillon {

/// The application object of this process, QCoreApplication or QApplication, which speaks the
/// user's language. There is one at a time. It is not given the command line, which Qt would take
/// its own options from. With a `platform`, its windows are on that one of Qt's; an environment
/// variable that says so would reach the programs that it starts.
template <typename Application>
[[nodiscard]] std::unique_ptr<Application> makeApplication(std::string platform = {}) {
    // Qt keeps references to them.
    static char name[] = "quillon";
    static char option[] = "-platform";
    static std::string value;
    static char* argv[] = {name, nullptr, nullptr, nullptr};
    static int argc = 1;
    value = std::move(platform);
    argc = value.empty() ? 1 : 3;
    argv[1] = value.empty() ? nullptr : option;
    argv[2] = value.empty() ? nullptr : value.data();
    auto application = std::make_unique<Application>(argc, argv);
    loadCatalogue();
    return application;
}

} // namespace quillon
