#include "desktop/LayerPanel.h"

#include "base/ShownText.h"
#include "desktop/Banner.h"
#include "desktop/HUDView.h"
#include "platform/Compositor.h"
#include "platform/Overlay.h"

namespace quillon {

void LayerPanel::setContent(const HUDView& view, const BannerMessage& message) {
    Overlay* const overlay = compositor_.overlay();
    if (!overlay) return;
    const BannerAnchor anchor = bannerAnchor(message.position);
    overlay->show({.size = view.size(),
                   .edge = anchor.edge,
                   .distance = anchor.distance,
                   .paint = [view](double ratio) { return view.render(ratio, true).toImage(); }});
    notice_.announce(shortened(QString::fromStdString(message.text)));
}

void LayerPanel::setAlpha(double alpha) {
    if (Overlay* const overlay = compositor_.overlay()) overlay->setOpacity(alpha);
}

void LayerPanel::vanish() {
    if (Overlay* const overlay = compositor_.overlay()) overlay->hide();
    notice_.end();
}

bool LayerPanel::works() const {
    return compositor_.overlay() != nullptr;
}

} // namespace quillon
