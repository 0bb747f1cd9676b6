#pragma once

#include "platform/Overlay.h"
#include "platform/linux/wayland/OverlaySurface.h"

#include <chrono>
#include <memory>
#include <utility>

namespace quillon {

/// Pictures over all windows as layer surfaces of a Wayland compositor.
class LayerOverlay : public Overlay {
public:
    explicit LayerOverlay(std::unique_ptr<LayerShell> shell) : shell_{std::move(shell)} {}

    /// Whether the compositor shows such pictures. Waits at most this long for one that has not
    /// told yet what it offers.
    [[nodiscard]] bool usable(std::chrono::milliseconds patience) const {
        return shell_->waitForOffers(patience) && shell_->usable();
    }

    void show(Picture picture) override;
    void setOpacity(double opacity) override;
    void hide() override;

private:
    std::unique_ptr<LayerShell> shell_;
    double opacity_ = 0;
    std::unique_ptr<OverlaySurface> present_;
    /// Stays until the present one has its first frame.
    std::unique_ptr<OverlaySurface> former_;
};

} // namespace quillon
