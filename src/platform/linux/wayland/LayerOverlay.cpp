#include "platform/linux/wayland/LayerOverlay.h"

#include <utility>

namespace quillon {

void LayerOverlay::show(Picture picture) {
    if (!shell_->usable()) return hide();
    // A surface stays on its screen, and the user may have gone to another, so each picture has a
    // surface of its own.
    if (present_) former_ = std::move(present_);
    present_ = std::make_unique<OverlaySurface>(*shell_, std::move(picture), opacity_, [this] {
        if (present_->shown()) former_.reset();
    });
}

void LayerOverlay::setOpacity(double opacity) {
    opacity_ = opacity;
    // In this order, since the first frame of the present one ends the former.
    if (former_) former_->setOpacity(opacity);
    if (present_) present_->setOpacity(opacity);
}

void LayerOverlay::hide() {
    present_.reset();
    former_.reset();
    shell_->flush();
}

} // namespace quillon
