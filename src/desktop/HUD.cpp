#include "desktop/HUD.h"

#include "desktop/HUDPanel.h"
#include "desktop/HUDView.h"
#include "platform/Compositor.h"

#include <QGuiApplication>
#include <QScreen>

#include <utility>

namespace quillon {
namespace {

using namespace std::chrono_literals;

constexpr auto goodNewsStays = 1800ms;
constexpr auto badNewsStays = 3500ms;
constexpr auto fadeInTime = 180ms;
constexpr auto fadeOutTime = 350ms;

const QScreen* mainScreen() {
    if (const QScreen* const primary = QGuiApplication::primaryScreen()) return primary;
    return QGuiApplication::screens().value(0);
}

} // namespace

HUD::HUD(Clock& clock, const Compositor& compositor, std::function<BannerPosition()> position)
    : clock_{clock},
      compositor_{compositor},
      position_{std::move(position)},
      fade_{clock, [this](double alpha) { panel_->setAlpha(alpha); }} {}

HUD::~HUD() = default;

void HUD::show(std::string text, std::string symbol, bool ok, bool sticky) {
    if (!panel_) panel_ = std::make_unique<HUDPanel>();
    place(text, HUDView{text, std::move(symbol), ok});
    fadeIn();
    hide_.reset();
    if (!sticky) hide_ = clock_.after(ok ? goodNewsStays : badNewsStays, [this] { fadeOut(); });
}

void HUD::place(const std::string& text, const HUDView& view) {
    const QScreen* const screen = mainScreen();
    blended_ = compositor_.active();
    panel_->setContent(view, QString::fromStdString(text), screen ? screen->devicePixelRatio() : 1,
                       blended_);
    if (!screen) return;
    panel_->setGeometry(bannerFrame(screen->availableGeometry(), view.size(), position_()));
    if (panel_->isVisible()) panel_->repaint();
}

void HUD::fadeIn() {
    if (!panel_->isVisible()) {
        fade_.run(0, 0ms);
        panel_->show();
    }
    panel_->raise();
    fade_.run(1, blended_ ? fadeInTime : 0ms);
}

void HUD::fadeOut() {
    fade_.run(0, blended_ ? fadeOutTime : 0ms, [this] { panel_->hide(); });
}

} // namespace quillon
