#include "desktop/HUD.h"

#include "desktop/BannerPanel.h"
#include "desktop/HUDView.h"

namespace quillon {
namespace {

using namespace std::chrono_literals;

constexpr auto goodNewsStays = 1800ms;
constexpr auto badNewsStays = 3500ms;
constexpr auto fadeInTime = 180ms;
constexpr auto fadeOutTime = 350ms;

/// Maps 0 to 1 onto 0 to 1, slow at both ends.
double eased(double part) {
    return part * part * (3 - 2 * part);
}

} // namespace

HUD::HUD(Clock& clock, const Compositor& compositor, const Workspace& workspace)
    : clock_{clock},
      compositor_{compositor},
      workspace_{workspace},
      alpha_{0, [this](double alpha) {
                 panel_->setAlpha(alpha);
                 if (alpha == 0 && alpha_.target() == 0) vanish();
             }} {}

HUD::~HUD() = default;

void HUD::show(BannerMessage message) {
    if (!panel_ || !panel_->works()) makePanel();
    panel_->setContent(HUDView{message.text, message.symbol, message.ok}, message);
    visible_ = true;
    panel_->appear();
    fadeTo(1, fadeInTime);
    hide_.reset();
    if (message.sticky) return;
    hide_ =
        clock_.after(message.ok ? goodNewsStays : badNewsStays, [this] { fadeTo(0, fadeOutTime); });
}

void HUD::makePanel() {
    panel_ = makeBannerPanel(compositor_, workspace_);
    panel_->setAlpha(alpha_.value());
}

void HUD::fadeTo(double alpha, std::chrono::milliseconds duration) {
    QEasingCurve curve;
    curve.setCustomType(eased);
    alpha_.run(alpha, panel_->fades() ? duration : 0ms, curve);
}

void HUD::vanish() {
    visible_ = false;
    panel_->vanish();
}

} // namespace quillon
