#pragma once

#include "platform/linux/pasteboard/Bell.h"

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string_view>

namespace quillon {

struct FreeDeleter {
    void operator()(void* pointer) const { std::free(pointer); } // NOLINT: xcb hands out malloc'd
};

/// Owns an event or a reply, which xcb allocates with malloc.
template <typename T>
using XcbPointer = std::unique_ptr<T, FreeDeleter>;

/// The connection of Qt's windows; null on other platforms. Only Qt may take events from it.
[[nodiscard]] xcb_connection_t* qtConnection();

/// Masks the type out of an event's response_type. The remaining bit marks events that another
/// client has sent.
inline constexpr std::uint8_t eventTypeMask = 0x7F;

/// The root window of the default screen.
[[nodiscard]] xcb_window_t rootWindow(xcb_connection_t* connection);

/// The atom of this name, which is made if there is none yet. Waits for the server; XCB_ATOM_NONE
/// if the server is gone.
[[nodiscard]] xcb_atom_t internAtom(xcb_connection_t* connection, std::string_view name);

/// The atom of a manager selection on the default screen: "_NET_WM_CM" gives the atom of
/// _NET_WM_CM_S0.
[[nodiscard]] xcb_atom_t managerSelection(xcb_connection_t* connection, std::string_view prefix);

/// Has the server send an XFixes event on this connection each time that the selection gets another
/// owner or loses its owner. The server must have the XFixes extension.
void selectOwnerEvents(xcb_connection_t* connection, xcb_window_t root, xcb_atom_t selection);

/// A separate connection to the X server, for one thread. If the server dies, the connection is
/// dead, but the program goes on.
class X11Connection {
public:
    /// Connects to `display` (null: what $DISPLAY names); null when there is no such display.
    [[nodiscard]] static std::unique_ptr<X11Connection> open(const char* display);

    X11Connection(const X11Connection&) = delete;
    X11Connection& operator=(const X11Connection&) = delete;
    ~X11Connection();

    /// For xcb's functions.
    [[nodiscard]] xcb_connection_t* get() const { return connection_; }
    [[nodiscard]] xcb_window_t root() const { return root_; }

    /// False once the server is gone; it stays so.
    [[nodiscard]] bool alive() const { return xcb_connection_has_error(connection_) == 0; }

    /// Sends what is buffered and sleeps until something arrives, the bell or the deadline. Take
    /// queued events and replies first: they do not end the sleep.
    void sleep(const Bell& bell, std::optional<Bell::Time> deadline) const;

private:
    X11Connection(xcb_connection_t* connection, xcb_window_t root);

    xcb_connection_t* connection_;
    xcb_window_t root_;
};

} // namespace quillon
