#include "platform/linux/Desktop.h"

#include "platform/linux/Application.h"
#include "platform/linux/DesktopHotKeys.h"
#include "platform/linux/OpenPasteboard.h"
#include "platform/linux/desktop/ActivationToken.h"
#include "platform/linux/shortcut/FoundSession.h"
#include "platform/linux/wayland/LayerOverlay.h"
#include "platform/linux/x11/X11Compositor.h"
#include "platform/linux/x11/X11Connection.h"

#include <QApplication>
#include <QDir>

#include <algorithm>

namespace quillon {
namespace {

using namespace std::chrono_literals;

/// Qt's platform that shows nothing, and needs no display.
constexpr const char* noWindows = "offscreen";

/// Within this a compositor that is well has told what it offers, long before the first banner. It
/// is a frame's time, for which the main thread may wait once.
constexpr auto offersPatience = 16ms;
/// How long one without an X server is waited for, before there is any window to hold up. Qt itself
/// would wait for ever.
constexpr auto displayPatience = 2s;

/// The windows of a desktop with Wayland may be on an X server, and its banner is a layer over all
/// of them where the compositor has that.
class WaylandCompositor : public X11Compositor {
public:
    explicit WaylandCompositor(std::unique_ptr<LayerShell> shell) : overlay_{std::move(shell)} {}

    [[nodiscard]] Overlay* overlay() const override {
        return overlay_.usable(offersPatience) ? &overlay_ : nullptr;
    }

private:
    mutable LayerOverlay overlay_;
};

/// Whether Qt can have windows on Wayland, which is a package of its own. Call it while there is no
/// application object.
bool hasWaylandWindows() {
    // Only an application knows all the places of plugins.
    const auto asking = makeApplication<QCoreApplication>();
    return std::ranges::any_of(QCoreApplication::libraryPaths(), [](const QString& place) {
        const QDir platforms{place + QStringLiteral("/platforms")};
        return !platforms.entryList({QStringLiteral("libqwayland*.so")}).isEmpty();
    });
}

/// Where the windows are, by Qt's names: on the X server where one answers, which lets the panel
/// choose its place, unless the user wants it otherwise (null, which has Qt look); else on Wayland.
/// What is on the clipboard can be sent without windows. None when there is neither.
std::optional<const char*> windowPlatform(DesktopNeeds needs, ClipboardWay way,
                                          LayerShell* wayland) {
    if (way == ClipboardWay::x11 || X11Connection::open(nullptr))
        return qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") ? "xcb" : nullptr;
    if (wayland && hasWaylandWindows() && wayland->waitForOffers(displayPatience)) return "wayland";
    if (way != ClipboardWay::none && needs == DesktopNeeds::clipboardAndBanner) return noWindows;
    return std::nullopt;
}

} // namespace

std::optional<Desktop> openDesktop(DesktopNeeds needs) {
    Desktop desktop{.application = {},
                    .pasteboard = std::make_unique<EmptyPasteboard>(),
                    .hotKeys = std::make_unique<NoHotKeys>(),
                    .compositor = {}};
    if (needs == DesktopNeeds::nothing) {
        desktop.application = makeApplication<QCoreApplication>();
        return desktop;
    }
    // Before the application, which would end the process where nothing answers.
    desktop.pasteboard = openPasteboard();
    auto shell = foundSession().wayland ? LayerShell::open() : nullptr;
    const auto platform = windowPlatform(needs, desktop.pasteboard->way(), shell.get());
    if (!platform) return std::nullopt;
    desktop.application = makeApplication<QApplication>(*platform);
    ActivationToken::takeFromLauncher();
    QApplication::setQuitOnLastWindowClosed(false);
    if (*platform == noWindows && !shell) return desktop;
    if (shell) {
        shell->followEvents();
        desktop.compositor = std::make_unique<WaylandCompositor>(std::move(shell));
    } else {
        desktop.compositor = std::make_unique<X11Compositor>();
    }
    if (needs == DesktopNeeds::clipboardAndBanner) return desktop;
    desktop.hotKeys = openHotKeys();
    return desktop;
}

std::string noDesktopMessage() {
    const auto wayland = hasWaylandWindows() ? nullptr : LayerShell::open();
    const auto speaker = makeApplication<QCoreApplication>();
    if (wayland && wayland->waitForOffers(displayPatience)) {
        return translate("App", "There is no X server, and Qt's part for Wayland is not installed. "
                                "Debian's package is qt6-wayland.");
    }
    return translate("App", "There is no desktop to work on: neither an X server nor a Wayland "
                            "compositor answers.");
}

} // namespace quillon
