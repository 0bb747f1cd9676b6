#pragma once

#include "desktop/Banner.h"
#include "platform/Clock.h"
#include "ui/theme/Animation.h"

#include <memory>

namespace quillon {

class Compositor;
class HUDPanel;
class Workspace;

/// The confirmation banner: one window, made for the first banner and used for all of them.
class HUD : public Banner {
public:
    /// `workspace` tells on which screen the banner is to come.
    HUD(Clock& clock, const Compositor& compositor, const Workspace& workspace);
    ~HUD() override;

    void show(BannerMessage message) override;

    /// The banner's window, null before the first banner.
    [[nodiscard]] const HUDPanel* panel() const { return panel_.get(); }

private:
    void place(const BannerMessage& message);
    void fadeIn();
    void fadeTo(double alpha, std::chrono::milliseconds duration);

    Clock& clock_;
    const Compositor& compositor_;
    const Workspace& workspace_;
    std::unique_ptr<HUDPanel> panel_;
    Animation alpha_;
    bool blended_ = true;
    std::unique_ptr<Clock::Timer> hide_;
};

} // namespace quillon
