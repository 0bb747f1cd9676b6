#include "platform/linux/Desktop.h"

#include "platform/linux/Application.h"
#include "platform/linux/DesktopHotKeys.h"
#include "platform/linux/x11/X11Compositor.h"
#include "platform/linux/x11/X11Pasteboard.h"

#include <QApplication>

namespace quillon {

std::optional<Desktop> openDesktop(DesktopNeeds needs) {
    Desktop desktop{.application = {},
                    .pasteboard = std::make_unique<EmptyPasteboard>(),
                    .hotKeys = std::make_unique<NoHotKeys>(),
                    .compositor = {}};
    if (needs == DesktopNeeds::nothing) {
        desktop.application = makeApplication<QCoreApplication>();
        return desktop;
    }
    // Before the application, which would end the process where no X server answers.
    desktop.pasteboard = X11Pasteboard::open(nullptr);
    if (!desktop.pasteboard) return std::nullopt;
    // The banner and the shortcut are on the X server. The user may want it otherwise.
    desktop.application =
        makeApplication<QApplication>(!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"));
    // The permission to come to the front is this program's, not that of programs it will start.
    for (const char* const permission : {"DESKTOP_STARTUP_ID", "XDG_ACTIVATION_TOKEN"})
        qunsetenv(permission);
    QApplication::setQuitOnLastWindowClosed(false);
    desktop.compositor = std::make_unique<X11Compositor>();
    if (needs == DesktopNeeds::clipboardAndBanner) return desktop;
    desktop.hotKeys = openHotKeys();
    return desktop;
}

std::string noDesktopMessage() {
    const auto speaker = makeApplication<QCoreApplication>();
    return translate("App", "There is no desktop to work on: no X server answers.");
}

} // namespace quillon
