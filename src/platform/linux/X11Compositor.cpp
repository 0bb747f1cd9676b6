#include "platform/linux/X11Compositor.h"

#include "platform/linux/X11Connection.h"

#include <QGuiApplication>

#include <cstdlib>
#include <string>

namespace quillon {
namespace {

/// The selection that a compositing manager owns, by the Extended Window Manager Hints.
std::string managerSelection() {
    int screen = 0;
    char* host = nullptr;
    int display = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen)) std::free(host);
    return "_NET_WM_CM_S" + std::to_string(screen);
}

} // namespace

bool X11Compositor::active() const {
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11) return true;
    xcb_connection_t* const connection = x11->connection();
    const auto cookie =
        xcb_get_selection_owner(connection, internAtom(connection, managerSelection()));
    const XcbPointer<xcb_get_selection_owner_reply_t> reply{
        xcb_get_selection_owner_reply(connection, cookie, nullptr)};
    return reply && reply->owner != XCB_WINDOW_NONE;
}

} // namespace quillon
