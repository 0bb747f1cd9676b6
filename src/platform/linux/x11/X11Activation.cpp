#include "platform/linux/x11/X11Activation.h"

#include "platform/linux/x11/X11Connection.h"

#include <QWindow>

#include <algorithm>
#include <cstdint>
#include <span>

namespace quillon {

namespace {

/// No window manager lists more atoms.
constexpr std::uint32_t mostAtoms = 1024;

/// The source of the request, by the Extended Window Manager Hints: a tool in which the user
/// chooses what to activate, such as the desktop's panel. Requests of ordinary applications count
/// only with the time of a click into one of their windows, and a click on the tray icon is none.
constexpr std::uint32_t sourcePager = 2;

/// Whether there is a window manager that activates windows on request.
bool isActivationSupported(xcb_connection_t* connection) {
    const xcb_atom_t activation = internAtom(connection, "_NET_ACTIVE_WINDOW");
    const auto cookie =
        xcb_get_property(connection, 0, rootWindow(connection),
                         internAtom(connection, "_NET_SUPPORTED"), XCB_ATOM_ATOM, 0, mostAtoms);
    const XcbPointer<xcb_get_property_reply_t> reply{
        xcb_get_property_reply(connection, cookie, nullptr)};
    if (!reply || reply->format != 32) return false;
    const std::span atoms{static_cast<const xcb_atom_t*>(xcb_get_property_value(reply.get())),
                          reply->value_len};
    return std::ranges::find(atoms, activation) != atoms.end();
}

/// The server's time in milliseconds, taken from the event of a property change. If the server is
/// gone, 0, which window managers take for the present. Uses a connection of its own, because the
/// events of Qt's belong to Qt.
xcb_timestamp_t serverTime() {
    const auto connection = X11Connection::open(nullptr);
    if (!connection) return XCB_CURRENT_TIME;
    xcb_connection_t* const xcb = connection->get();
    const xcb_window_t window = xcb_generate_id(xcb);
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(xcb, XCB_COPY_FROM_PARENT, window, connection->root(), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                      &events);
    xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, 0,
                        nullptr);
    xcb_flush(xcb);
    while (const XcbPointer<xcb_generic_event_t> event{xcb_wait_for_event(xcb)}) {
        if (event->response_type == XCB_PROPERTY_NOTIFY)
            return reinterpret_cast<const xcb_property_notify_event_t*>(event.get())->time;
    }
    return XCB_CURRENT_TIME;
}

void askWindowManager(xcb_connection_t* connection, xcb_window_t window) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = internAtom(connection, "_NET_ACTIVE_WINDOW");
    message.data.data32[0] = sourcePager;
    message.data.data32[1] = serverTime();
    xcb_send_event(connection, 0, rootWindow(connection),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(connection);
}

} // namespace

void bringToFront(QWindow& window) {
    xcb_connection_t* const connection = qtConnection();
    if (connection && isActivationSupported(connection))
        return askWindowManager(connection, static_cast<xcb_window_t>(window.winId()));
    window.raise();
    window.requestActivate();
}

} // namespace quillon
