#include "core/Core.h"

#include "platform/Platform.h"

namespace quillon {

Core::Core(Platform& platform, const Compositor* compositor)
    : analytics{platform},
      hud{compositor ? std::make_unique<HUD>(platform.clock, *compositor, platform.workspace)
                     : nullptr},
      banner{hud.get()},
      hotkey{platform.hotKeys},
      store{platform, banner, hotkey},
      events{store, analytics} {}

} // namespace quillon
