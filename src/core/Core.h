#pragma once

#include "analytics/Analytics.h"
#include "analytics/StoreEvents.h"
#include "core/SpokenBanner.h"
#include "desktop/HUD.h"
#include "desktop/Hotkey.h"
#include "state/Store.h"

#include <memory>

namespace quillon {

class Compositor;
struct Platform;

/// The objects that every action works with, wired to each other. The program that stays and a
/// single command build the same ones.
struct Core {
    /// Without a compositor (null) no banner is shown.
    Core(Platform& platform, const Compositor* compositor);

    /// Null where no banner is shown.
    const Compositor* compositor;
    Analytics analytics;
    /// The banner's window; null where none is shown.
    std::unique_ptr<HUD> hud;
    /// What the store shows its messages on.
    SpokenBanner banner;
    Hotkey hotkey;
    Store store;
    StoreEvents events;
};

} // namespace quillon
