#pragma once

#include "desktop/BannerNotice.h"
#include "desktop/BannerPanel.h"

namespace quillon {

/// The banner as a layer of the desktop over its windows (`Overlay`), which is none of Qt's windows
/// and has somebody else announce it.
class LayerPanel : public BannerPanel {
public:
    /// A compositor that has an overlay.
    explicit LayerPanel(const Compositor& compositor) : compositor_{compositor} {}

    void setContent(const HUDView& view, const BannerMessage& message) override;
    [[nodiscard]] bool fades() const override { return true; }
    void setAlpha(double alpha) override;
    void appear() override {} // it does with its content
    void vanish() override;
    [[nodiscard]] bool works() const override;

private:
    const Compositor& compositor_;
    BannerNotice notice_;
};

} // namespace quillon
