#include "desktop/HUD.h"

#include "desktop/HUDPanel.h"
#include "desktop/HUDView.h"
#include "platform/Compositor.h"
#include "platform/Workspace.h"

#include <QScreen>

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
                 if (alpha == 0 && alpha_.target() == 0) panel_->hide();
             }} {}

HUD::~HUD() = default;

void HUD::show(BannerMessage message) {
    if (!panel_) panel_ = std::make_unique<HUDPanel>();
    place(message);
    fadeIn();
    hide_.reset();
    if (message.sticky) return;
    hide_ =
        clock_.after(message.ok ? goodNewsStays : badNewsStays, [this] { fadeTo(0, fadeOutTime); });
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

void HUD::fadeIn() {
    panel_->show();
    panel_->raise();
    fadeTo(1, fadeInTime);
}

void HUD::fadeTo(double alpha, std::chrono::milliseconds duration) {
    QEasingCurve curve;
    curve.setCustomType(eased);
    alpha_.run(alpha, blended_ ? duration : 0ms, curve);
}

} // namespace quillon
