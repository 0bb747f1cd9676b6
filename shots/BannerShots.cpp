// Takes pictures of banners over a bit of desktop: with a compositor, which blends them in, and
// without one.
#include "desktop/HUD.h"
#include "desktop/HUDPanel.h"
#include "shots/Shots.h"
#include "support/Await.h"
#include "support/FakeClock.h"
#include "support/FakeCompositor.h"
#include "support/FakeDesktop.h"

#include <QApplication>
#include <QPainter>

namespace {

using namespace quillon;
using namespace quillon::test;

struct Scene {
    const char* name;
    const char* text;
    const char* symbol = "checkmark.circle.fill";
    bool ok = true;
    bool blended = true;
};

constexpr const char* warning = "exclamationmark.triangle";

constexpr Scene scenes[]{
    {"sent", "Sent to 📝 Notes & text"},
    {"sending", "Sending…", "arrow.up.circle"},
    {"items", "Sent 3 items"},
    {"partly", "2 sent, 1 failed", warning, false},
    {"empty", "The clipboard is empty", "clipboard", false},
    {"not-set-up", "Finish setting up Quillon first", "exclamationmark.circle", false},
    {"error", "Couldn't reach Telegram. Check your internet connection.", warning, false},
    {"error-long",
     "holiday in the mountains, second evening, uncut and with all the outtakes that nobody asked "
     "for.mp4 is over 50 MB (Telegram's limit for bots)",
     warning, false},
    {"cut-out", "Sent to 📝 Notes & text", "checkmark.circle.fill", true, false},
};

QPixmap overDesktop(const QPixmap& banner) {
    constexpr int margin = 24;
    const bool dark = qEnvironmentVariableIntValue("DARK") != 0;
    const double ratio = banner.devicePixelRatio();
    const QSizeF size = banner.deviceIndependentSize() + QSizeF{2 * margin, 2 * margin};
    QPixmap picture{(size * ratio).toSize()};
    picture.setDevicePixelRatio(ratio);
    QPainter painter{&picture};
    QLinearGradient sky{0, 0, size.width(), size.height()};
    sky.setColorAt(0, dark ? QColor{28, 42, 66} : QColor{201, 222, 238});
    sky.setColorAt(1, dark ? QColor{56, 40, 72} : QColor{243, 226, 214});
    painter.fillRect(QRectF{{}, size}, sky);
    painter.drawPixmap(margin, margin, banner);
    return picture;
}

QPixmap take(const Scene& scene) {
    FakeClock clock;
    const FakeCompositor compositor{scene.blended};
    FakeWorkspace workspace;
    HUD hud{clock, compositor, workspace};
    hud.show({.text = shown(scene.text).toStdString(), .symbol = scene.symbol, .ok = scene.ok});
    QWidget& window = onlyWindow();
    const QPixmap banner = pictureOf(window);
    if (scene.blended) return overDesktop(banner);
    QPixmap cutOut{banner.size()};
    cutOut.setDevicePixelRatio(banner.devicePixelRatio());
    cutOut.fill(Qt::transparent);
    QPainter painter{&cutOut};
    painter.setClipRegion(window.mask());
    painter.drawPixmap(0, 0, banner);
    painter.end();
    return overDesktop(cutOut);
}

std::vector<Shot> shots() {
    std::vector<Shot> shots;
    for (const Scene& scene : scenes)
        shots.push_back({scene.name, [&scene] { return take(scene); }});
    return shots;
}

} // namespace

int main(int argc, char** argv) {
    return takeShots(argc, argv, shots(), {});
}
