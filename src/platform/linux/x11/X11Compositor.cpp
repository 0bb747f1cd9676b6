#include "platform/linux/x11/X11Compositor.h"

#include "platform/linux/x11/X11Connection.h"

namespace quillon {

bool X11Compositor::active() const {
    xcb_connection_t* const connection = qtConnection();
    if (!connection) return true;
    const auto cookie =
        xcb_get_selection_owner(connection, managerSelection(connection, "_NET_WM_CM"));
    const XcbPointer<xcb_get_selection_owner_reply_t> reply{
        xcb_get_selection_owner_reply(connection, cookie, nullptr)};
    return reply && reply->owner != XCB_WINDOW_NONE;
}

} // namespace quillon
