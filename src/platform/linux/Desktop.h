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
    nothing,            ///< it prints text at the most, and may run where there is no desktop
    clipboardAndBanner, ///< it sends once
    everything,         ///< it stays, with windows and the shortcut
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

/// Makes the application object and opens what is needed; none when there is no desktop. This is
/// the only place that knows which kind of desktop it is.
[[nodiscard]] std::optional<Desktop> openDesktop(DesktopNeeds needs);

/// The sentence for when there is none. To be called while there is no application object.
[[nodiscard]] std::string noDesktopMessage();

} // namespace quillon
