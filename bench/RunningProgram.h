// The program's objects on the real desktop, as a benchmark finds them: set up and running.
#pragma once

#include "analytics/Analytics.h"
#include "analytics/StoreEvents.h"
#include "cli/SpokenBanner.h"
#include "desktop/HUD.h"
#include "desktop/Hotkey.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/x11/X11Compositor.h"
#include "platform/linux/x11/X11Pasteboard.h"
#include "state/Store.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace quillon::bench {

class RunningProgram {
public:
    explicit RunningProgram(std::unique_ptr<Pasteboard> pasteboard)
        : services{std::move(pasteboard)} {}

    LinuxPlatform services;
    Analytics analytics{services.platform()};
    X11Compositor compositor;
    HUD hud{services.platform().clock, compositor};
    SpokenBanner banner{&hud};
    Hotkey hotkey{services.platform().hotKeys};
    Store store{services.platform(), banner, hotkey};
    StoreEvents events{store, analytics};
};

/// Whether all of the history's newest `count` entries were sent.
inline bool newestWereSent(const Store& store, std::size_t count) {
    const auto& history = store.history();
    const auto sent = [](const Sent& entry) { return !entry.error; };
    return history.size() >= count &&
           std::all_of(history.begin(), history.begin() + static_cast<std::ptrdiff_t>(count), sent);
}

} // namespace quillon::bench
