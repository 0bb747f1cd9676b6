#include "platform/linux/x11/X11Screen.h"

#include "platform/linux/x11/X11Connection.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <array>
#include <optional>

namespace quillon {

namespace {

/// By the Extended Window Manager Hints; XCB_WINDOW_NONE if no window is active.
xcb_window_t activeWindow(xcb_connection_t* connection) {
    const auto cookie =
        xcb_get_property(connection, 0, rootWindow(connection),
                         internAtom(connection, "_NET_ACTIVE_WINDOW"), XCB_ATOM_WINDOW, 0, 1);
    const XcbPointer<xcb_get_property_reply_t> reply{
        xcb_get_property_reply(connection, cookie, nullptr)};
    if (!reply || xcb_get_property_value_length(reply.get()) != sizeof(xcb_window_t))
        return XCB_WINDOW_NONE;
    return *static_cast<const xcb_window_t*>(xcb_get_property_value(reply.get()));
}

/// In the server's pixels; none if the window has gone.
std::optional<QPoint> centreOf(xcb_connection_t* connection, xcb_window_t window) {
    const auto sizeCookie = xcb_get_geometry(connection, window);
    const auto placeCookie =
        xcb_translate_coordinates(connection, window, rootWindow(connection), 0, 0);
    const XcbPointer<xcb_get_geometry_reply_t> size{
        xcb_get_geometry_reply(connection, sizeCookie, nullptr)};
    const XcbPointer<xcb_translate_coordinates_reply_t> place{
        xcb_translate_coordinates_reply(connection, placeCookie, nullptr)};
    if (!size || !place) return std::nullopt;
    return QPoint{place->dst_x + size->width / 2, place->dst_y + size->height / 2};
}

/// Qt places screens as the server does, and counts their sizes in device-independent pixels.
QScreen* screenAt(QPoint pixel) {
    for (QScreen* const screen : QGuiApplication::screens()) {
        const QSizeF size = QSizeF{screen->size()} * screen->devicePixelRatio();
        if (QRect{screen->geometry().topLeft(), size.toSize()}.contains(pixel)) return screen;
    }
    return nullptr;
}

} // namespace

QScreen* screenOfActiveWindow() {
    xcb_connection_t* const connection = qtConnection();
    if (!connection) return nullptr;
    const xcb_window_t window = activeWindow(connection);
    if (window == XCB_WINDOW_NONE) return nullptr;
    const auto centre = centreOf(connection, window);
    return centre ? screenAt(*centre) : nullptr;
}

bool pointerPressed() {
    xcb_connection_t* const connection = qtConnection();
    if (!connection) return false;
    const auto cookie = xcb_query_pointer(connection, rootWindow(connection));
    const XcbPointer<xcb_query_pointer_reply_t> reply{
        xcb_query_pointer_reply(connection, cookie, nullptr)};
    constexpr unsigned buttons =
        XCB_BUTTON_MASK_1 | XCB_BUTTON_MASK_2 | XCB_BUTTON_MASK_3; // the others are the wheel's
    return reply && (reply->mask & buttons) != 0;
}

void keepOffTaskBar(QWindow& window) {
    xcb_connection_t* const connection = qtConnection();
    if (!connection) return;
    // Qt adds the states that it knows of when it shows the window.
    const std::array states{internAtom(connection, "_NET_WM_STATE_SKIP_TASKBAR"),
                            internAtom(connection, "_NET_WM_STATE_SKIP_PAGER")};
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE,
                        static_cast<xcb_window_t>(window.winId()),
                        internAtom(connection, "_NET_WM_STATE"), XCB_ATOM_ATOM, 32,
                        static_cast<std::uint32_t>(states.size()), states.data());
}

} // namespace quillon
