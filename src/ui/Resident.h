#pragma once

#include "analytics/Analytics.h"
#include "cli/SpokenBanner.h"
#include "desktop/HUD.h"
#include "maintenance/Updater.h"
#include "platform/linux/FolderLock.h"
#include "platform/linux/X11Compositor.h"
#include "state/Store.h"
#include "ui/CommandService.h"
#include "update/windows/UpdateWindows.h"

#include <memory>

namespace quillon {

class AppMover;

/// The session's one running program: everything that works from its start to its end.
class Resident {
public:
    /// Null when another program of the session has the name on the bus, or the data folder.
    [[nodiscard]] static std::unique_ptr<Resident> claim(Platform& platform, AppMover& mover);

    /// Begins the work, in the order that its parts need each other.
    void start();

private:
    Resident(Platform& platform, AppMover& mover, std::unique_ptr<CommandService> service,
             FolderLock lock);

    Platform& platform_;
    FolderLock lock_;
    Analytics analytics_;
    X11Compositor compositor_;
    HUD hud_;
    SpokenBanner banner_;
    Store store_;
    UpdateWindows updateWindows_;
    Updater updater_;
    std::unique_ptr<CommandService> service_;
};

} // namespace quillon
