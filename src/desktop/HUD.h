#pragma once

#include "desktop/Banner.h"
#include "platform/Clock.h"
#include "ui/theme/Animation.h"

#include <memory>

namespace quillon {

class BannerPanel;
class Compositor;
class Workspace;

/// The confirmation banner: one panel, made for the first banner and used for all of them.
class HUD : public Banner {
public:
    /// `compositor` tells what the banner is shown in, and `workspace` on which screen.
    HUD(Clock& clock, const Compositor& compositor, const Workspace& workspace);
    ~HUD() override;

    void show(BannerMessage message) override;

    /// Whether a banner shows, however faint.
    [[nodiscard]] bool visible() const { return visible_; }
    /// What shows the banner, null before the first one.
    [[nodiscard]] const BannerPanel* panel() const { return panel_.get(); }

private:
    void makePanel();
    void vanish();
    void fadeTo(double alpha, std::chrono::milliseconds duration);

    Clock& clock_;
    const Compositor& compositor_;
    const Workspace& workspace_;
    std::unique_ptr<BannerPanel> panel_;
    Animation alpha_;
    bool visible_ = false;
    std::unique_ptr<Clock::Timer> hide_;
};

} // namespace quillon
