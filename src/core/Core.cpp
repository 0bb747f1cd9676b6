#include "core/Core.h"

#include "platform/Platform.h"

namespace quillon {

Core::Core(Platform& platform, const Compositor* compositor)
    : analytics{platform},
      hud{compositor ? std::make_unique<HUD>(platform.clock, *compositor,
                                             [this] { return store.config().bannerPosition; })
                     : nullptr},
      banner{hud.get()},
      store{platform, analytics, banner} {}

} // namespace quillon
