#include "desktop/HUD.h"

#include "desktop/HUDPanel.h"
#include "desktop/HUDView.h"
#include "platform/Compositor.h"
#include "platform/Workspace.h"
#include "ui/theme/Motion.h"

#include <QScreen>

namespace quillon {
namespace {

using namespace std::chrono_literals;

constexpr auto goodNewsStays = 1800ms;
constexpr auto badNewsStays = 3500ms;
constexpr auto fadeInTime = 180ms;
constexpr auto fadeOutTime = 350ms;

} // namespace

HUD::HUD(Clock& clock, const Compositor& compositor, const Workspace& workspace)
    : clock_{clock},
      compositor_{compositor},
      workspace_{workspace},
      fade_{clock, [this](double alpha) { panel_->setAlpha(alpha); }} {}

HUD::~HUD() = default;

void HUD::show(BannerMessage message) {
    if (!panel_) panel_ = std::make_unique<HUDPanel>();
    place(message);
    fadeIn();
    hide_.reset();
    if (message.sticky) return;
    hide_ = clock_.after(message.ok ? goodNewsStays : badNewsStays, [this] { fadeOut(); });
}

void HUD::place(const BannerMessage& message) {
    const HUDView view{message.text, message.symbol, message.ok};
    const QScreen* const screen = workspace_.screenInUse();
    blended_ = compositor_.active();
    panel_->setContent(view, QString::fromStdString(message.text),
                       screen ? screen->devicePixelRatio() : 1, blended_);
    if (!screen) return;
    panel_->setGeometry(bannerFrame(screen->availableGeometry(), view.size(), message.position));
    if (panel_->isVisible()) panel_->repaint();
}

bool HUD::fades() const {
    return blended_ && animationsEnabled();
}

void HUD::fadeIn() {
    if (!panel_->isVisible()) {
        fade_.run(0, 0ms);
        panel_->show();
    }
    panel_->raise();
    fade_.run(1, fades() ? fadeInTime : 0ms);
}

void HUD::fadeOut() {
    fade_.run(0, fades() ? fadeOutTime : 0ms, [this] { panel_->hide(); });
}

} // namespace quillon
