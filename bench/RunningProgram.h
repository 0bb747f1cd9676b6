// The program's objects on the real desktop, as a benchmark finds them: set up and running.
#pragma once

#include "core/Core.h"
#include "platform/linux/Desktop.h"
#include "platform/linux/LinuxPlatform.h"

#include <algorithm>
#include <utility>

namespace quillon::bench {

/// There is one in a process, and it makes the application object.
class RunningProgram {
public:
    /// The desktop has to be there.
    Desktop desktop = openDesktop(DesktopNeeds::clipboardAndBanner).value();
    LinuxPlatform services{std::move(desktop.pasteboard), std::move(desktop.hotKeys)};
    Core core{services.platform(), desktop.compositor.get()};
};

/// Whether all of the history's newest `count` entries were sent.
inline bool newestWereSent(const Store& store, std::size_t count) {
    const auto& history = store.history();
    const auto sent = [](const Sent& entry) { return !entry.error; };
    return history.size() >= count &&
           std::all_of(history.begin(), history.begin() + static_cast<std::ptrdiff_t>(count), sent);
}

} // namespace quillon::bench
