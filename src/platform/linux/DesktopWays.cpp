#include "platform/linux/DesktopWays.h"

#include "platform/Compositor.h"
#include "platform/linux/OpenPasteboard.h"
#include "platform/linux/shortcut/FoundSession.h"
#include "platform/linux/wayland/LayerShell.h"

namespace quillon {

namespace {

constexpr std::chrono::seconds patience{1};

DesktopWays ways(const Pasteboard& pasteboard, bool layer) {
    using enum DesktopWays::Session;
    return {.session = foundSession().wayland ? wayland : x11,
            .clipboard = pasteboard.way(),
            .banner = layer ? DesktopWays::Banner::layer : DesktopWays::Banner::window};
}

} // namespace

DesktopWays desktopWays(const Pasteboard& pasteboard, const Compositor& compositor) {
    return ways(pasteboard, compositor.overlay() != nullptr);
}

DesktopWays probeDesktop() {
    const auto shell = foundSession().wayland ? LayerShell::open() : nullptr;
    return ways(*openPasteboard(), shell && shell->waitForOffers(patience) && shell->usable());
}

} // namespace quillon
