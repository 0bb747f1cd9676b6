#pragma once

#include "platform/Compositor.h"
#include "platform/HotKeys.h"
#include "platform/Pasteboard.h"

#include <QCoreApplication>

#include <memory>
#include <optional>
#include <string>

namespace quillon {

/// What a process needs of the desktop.
enum class DesktopNeeds {
    nothing,            ///< no desktop at all
    clipboardAndBanner, ///< for sending once
    everything,         ///< with the shortcut, for the program that stays
};

/// The desktop as one process uses it.
struct Desktop {
    /// Outlives everything else here. A QApplication if anything of the desktop is needed.
    std::unique_ptr<QCoreApplication> application;
    /// What is not needed is a stand-in that does nothing.
    std::unique_ptr<Pasteboard> pasteboard;
    std::unique_ptr<HotKeys> hotKeys;
    /// Null where no banner is needed.
    std::unique_ptr<Compositor> compositor;
};

/// Makes the application object and opens what is needed; none when that takes a desktop and there
/// is none. Nothing above it chooses between kinds of desktops.
[[nodiscard]] std::optional<Desktop> openDesktop(DesktopNeeds needs);

/// What to tell the user then. Call it while there is no application object.
[[nodiscard]] std::string noDesktopMessage();

} // namespace quillon
