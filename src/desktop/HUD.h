#pragma once

#include "desktop/Banner.h"
#include "desktop/Fade.h"
#include "platform/Clock.h"
#include "state/BannerPosition.h"

#include <functional>
#include <memory>

namespace quillon {

class Compositor;
class HUDPanel;
class HUDView;

/// The confirmation banner: one window, made for the first banner and used for all of them.
class HUD : public Banner {
public:
    /// `position` is asked once for each banner.
    HUD(Clock& clock, const Compositor& compositor, std::function<BannerPosition()> position);
    ~HUD() override;

    void show(std::string text, std::string symbol, bool ok, bool sticky) override;

    /// The banner's window, null before the first banner.
    [[nodiscard]] const HUDPanel* panel() const { return panel_.get(); }

private:
    void place(const std::string& text, const HUDView& view);
    void fadeIn();
    void fadeOut();

    Clock& clock_;
    const Compositor& compositor_;
    std::function<BannerPosition()> position_;
    std::unique_ptr<HUDPanel> panel_;
    Fade fade_;
    bool blended_ = true;
    std::unique_ptr<Clock::Timer> hide_;
};

} // namespace quillon
