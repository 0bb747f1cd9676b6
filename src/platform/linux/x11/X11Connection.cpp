#include "platform/linux/x11/X11Connection.h"

#include <QGuiApplication>

#include <xcb/xfixes.h>

#include <string>

namespace quillon {

namespace {

xcb_window_t rootWindow(xcb_connection_t* connection, int screen) {
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (; screens.rem > 1 && screen > 0; --screen)
        xcb_screen_next(&screens);
    return screens.rem > 0 ? screens.data->root : xcb_window_t{XCB_WINDOW_NONE};
}

/// The screen that $DISPLAY names.
int defaultScreen() {
    int screen = 0;
    char* host = nullptr;
    int display = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen)) std::free(host); // NOLINT: malloc'd
    return screen;
}

} // namespace

xcb_connection_t* qtConnection() {
    const auto* const native =
        qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return native ? native->connection() : nullptr;
}

xcb_window_t rootWindow(xcb_connection_t* connection) {
    return rootWindow(connection, defaultScreen());
}

xcb_atom_t internAtom(xcb_connection_t* connection, std::string_view name) {
    const auto cookie =
        xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const XcbPointer<xcb_intern_atom_reply_t> reply{
        xcb_intern_atom_reply(connection, cookie, nullptr)};
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

xcb_atom_t managerSelection(xcb_connection_t* connection, std::string_view prefix) {
    return internAtom(connection, std::string{prefix} + "_S" + std::to_string(defaultScreen()));
}

void selectOwnerEvents(xcb_connection_t* connection, xcb_window_t root, xcb_atom_t selection) {
    constexpr auto every = XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                           XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                           XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE;
    xcb_xfixes_select_selection_input(connection, root, selection, every);
}

std::unique_ptr<X11Connection> X11Connection::open(const char* display) {
    int screen = 0;
    xcb_connection_t* connection = xcb_connect(display, &screen); // never null
    if (xcb_connection_has_error(connection) == 0) {
        const xcb_window_t root = rootWindow(connection, screen);
        if (root != XCB_WINDOW_NONE)
            return std::unique_ptr<X11Connection>{new X11Connection{connection, root}};
    }
    xcb_disconnect(connection);
    return nullptr;
}

X11Connection::X11Connection(xcb_connection_t* connection, xcb_window_t root)
    : connection_{connection},
      root_{root} {}

X11Connection::~X11Connection() {
    xcb_disconnect(connection_);
}

void X11Connection::sleep(const Bell& bell, std::optional<Bell::Time> deadline) const {
    xcb_flush(connection_);
    // A dead server's socket is always readable, so it is replaced by a negative number.
    bell.sleep({alive() ? xcb_get_file_descriptor(connection_) : -1}, deadline);
}

} // namespace quillon
