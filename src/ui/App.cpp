#include "ui/App.h"

#include "analytics/Analytics.h"
#include "desktop/HUD.h"
#include "platform/EmptyPasteboard.h"
#include "platform/FileSystem.h"
#include "platform/LoginItem.h"
#include "platform/Workspace.h"
#include "platform/linux/FolderLock.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/QuitSignals.h"
#include "platform/linux/X11Compositor.h"
#include "platform/linux/X11Pasteboard.h"
#include "state/Store.h"

#include <QApplication>
#include <QFontMetrics>
#include <QTimer>

#include <iostream>

namespace quillon {

namespace {

constexpr int exitFailed = 1;

int failed(const char* reason) {
    std::cerr << reason << std::endl;
    return exitFailed;
}

/// The first text to be drawn has Qt look through the fonts, which takes longer than a frame:
/// better now than when the first banner fades in.
void loadFont() {
    [[maybe_unused]] const int width =
        QFontMetrics{QApplication::font()}.horizontalAdvance(QLatin1Char('Q'));
}

} // namespace

int App::run() {
    std::unique_ptr<Pasteboard> pasteboard = X11Pasteboard::open(nullptr);
    if (!pasteboard) return failed("There is no desktop to work on: no X server answers.");
    // The banner is an X11 window, also where the desktop offers Wayland as well.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "xcb");
    int argc = 1;
    char name[] = "quillon";
    char* argv[] = {name, nullptr};
    QApplication application{argc, argv};
    QApplication::setQuitOnLastWindowClosed(false);

    LinuxPlatform services{std::move(pasteboard)};
    Platform& platform = services.platform();
    platform.files.createFolder(platform.dataFolder);
    const auto lock = FolderLock::take(platform.dataFolder);
    if (!lock) return failed(FolderLock::heldMessage);

    Analytics analytics{platform};
    const X11Compositor compositor;
    Store* settings = nullptr;
    HUD hud{platform.clock, compositor, [&settings] { return settings->config().bannerPosition; }};
    Store store{platform, analytics, hud};
    settings = &store;

    const QuitSignals signals{[&] { platform.workspace.terminate(); }};
    QTimer::singleShot(0, &store, loadFont);
    return QApplication::exec();
}

} // namespace quillon
