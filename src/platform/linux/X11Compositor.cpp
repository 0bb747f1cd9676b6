#include "platform/linux/X11Compositor.h"

#include "platform/linux/X11Connection.h"

#include <QGuiApplication>

namespace quillon {
bool X11Compositor::active() const {
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11) return true;
    xcb_connection_t* const connection = x11->connection();
    const auto cookie =
        xcb_get_selection_owner(connection, managerSelection(connection, "_NET_WM_CM"));
    const XcbPointer<xcb_get_selection_owner_reply_t> reply{
        xcb_get_selection_owner_reply(connection, cookie, nullptr)};
    return reply && reply->owner != XCB_WINDOW_NONE;
}

} // namespace quillon
