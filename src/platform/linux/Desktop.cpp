#include "platform/linux/Desktop.h"

#include "platform/linux/Application.h"
#include "platform/linux/OpenPasteboard.h"
#include "platform/linux/x11/X11Compositor.h"
#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/X11HotKeys.h"

#include <QApplication>

namespace quillon {

namespace {

/// Qt's platform that shows nothing, and needs no display.
constexpr const char* noWindows = "offscreen";

/// Qt's way to the display; none where there is none that does for what is needed. It is chosen
/// here because Qt would end the process where no X server answers.
std::optional<const char*> qtPlatform(DesktopNeeds needs, ClipboardWay way) {
    // The user may want it otherwise.
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) return nullptr;
    // The banner and the shortcut are on the X server.
    if (way == ClipboardWay::x11 || X11Connection::open(nullptr)) return "xcb";
    // What is on the clipboard can be sent without windows.
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
    desktop.pasteboard = openPasteboard();
    const auto platform = qtPlatform(needs, desktop.pasteboard->way());
    if (!platform) return std::nullopt;
    desktop.application = makeApplication<QApplication>(*platform);
    // The permission to come to the front is this program's, not that of programs it will start.
    for (const char* const permission : {"DESKTOP_STARTUP_ID", "XDG_ACTIVATION_TOKEN"})
        qunsetenv(permission);
    QApplication::setQuitOnLastWindowClosed(false);
    if (*platform == noWindows) return desktop;
    desktop.compositor = std::make_unique<X11Compositor>();
    if (needs == DesktopNeeds::clipboardAndBanner) return desktop;
    if (auto hotKeys = X11HotKeys::open(nullptr)) desktop.hotKeys = std::move(hotKeys);
    return desktop;
}

std::string noDesktopMessage() {
    const auto speaker = makeApplication<QCoreApplication>();
    return translate("App", "There is no desktop to work on: no X server answers.");
}

} // namespace quillon
