#include "platform/linux/DesktopHotKeys.h"

#include "platform/Bundle.h"
#include "platform/linux/desktop/LinuxBundle.h"
#include "platform/linux/shortcut/PortalHotKeys.h"
#include "platform/linux/x11/X11HotKeys.h"

namespace quillon {

std::unique_ptr<HotKeys> openHotKeys() {
    FoundSession session = foundSession();
    if (session.wayland) {
        return std::make_unique<PortalHotKeys>(
            PortalHotKeys::Options{.session = std::move(session),
                                   .executable = runningBundle().executable,
                                   .applicationId = applicationIdentifier});
    }
    if (auto hotKeys = X11HotKeys::open(nullptr)) return hotKeys;
    return std::make_unique<NoHotKeys>();
}

} // namespace quillon
