#include "core/Core.h"

#include "platform/Platform.h"

namespace quillon {

Core::Core(Platform& platform, const Compositor* desktop)
    : compositor{desktop},
      analytics{platform},
      hud{desktop ? std::make_unique<HUD>(platform.clock, *desktop, platform.workspace) : nullptr},
      banner{hud.get()},
      hotkey{platform.hotKeys},
      store{platform, banner, hotkey},
      events{store, analytics} {}

} // namespace quillon
