#include "desktop/BannerPanel.h"

#include "desktop/HUDPanel.h"
#include "desktop/LayerPanel.h"
#include "platform/Compositor.h"

namespace quillon {

std::unique_ptr<BannerPanel> makeBannerPanel(const Compositor& compositor,
                                             const Workspace& workspace) {
    if (compositor.overlay()) return std::make_unique<LayerPanel>(compositor);
    return std::make_unique<HUDPanel>(compositor, workspace);
}

} // namespace quillon
