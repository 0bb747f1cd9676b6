#include "platform/linux/X11Compositor.h"

#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string>

namespace quillon {
namespace {

template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

/// The selection that a compositing manager owns, by the Extended Window Manager Hints.
std::string managerSelection() {
    int screen = 0;
    char* host = nullptr;
    int display = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen)) std::free(host);
    return "_NET_WM_CM_S" + std::to_string(screen);
}

xcb_atom_t atom(xcb_connection_t* connection, const std::string& name) {
    const auto cookie =
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const Reply<xcb_intern_atom_reply_t> reply{xcb_intern_atom_reply(connection, cookie, nullptr),
                                               &std::free};
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

} // namespace

bool X11Compositor::active() const {
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11) return true;
    xcb_connection_t* const connection = x11->connection();
    const auto cookie = xcb_get_selection_owner(connection, atom(connection, managerSelection()));
    const Reply<xcb_get_selection_owner_reply_t> reply{
        xcb_get_selection_owner_reply(connection, cookie, nullptr), &std::free};
    return reply && reply->owner != XCB_WINDOW_NONE;
}

} // namespace quillon
