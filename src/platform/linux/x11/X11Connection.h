#pragma once

#include <xcb/xcb.h>

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string_view>

namespace quillon {

struct FreeDeleter {
    void operator()(void* pointer) const { std::free(pointer); } // NOLINT: xcb hands out malloc'd
};

/// An event or a reply, which xcb allocates with malloc.
template <typename T>
using XcbPointer = std::unique_ptr<T, FreeDeleter>;

/// The connection that Qt's windows are on, whose events are Qt's to take; null on other platforms.
[[nodiscard]] xcb_connection_t* qtConnection();

/// Has Qt work on the X server, where the banner and the shortcut are, also where the desktop
/// offers Wayland as well; unless the user wants it otherwise. To be called before there is an
/// application.
void preferX11();

/// An X event's type is this part of it; the bit that is left tells that another client has sent
/// it.
inline constexpr std::uint8_t eventTypeMask = 0x7F;

/// The root window of the default screen.
[[nodiscard]] xcb_window_t rootWindow(xcb_connection_t* connection);

/// The atom of this name, which is made where there is none yet. Waits for the server;
/// XCB_ATOM_NONE when that is gone.
[[nodiscard]] xcb_atom_t internAtom(xcb_connection_t* connection, std::string_view name);

/// The atom of the selection that the manager of something owns on the default screen: "_NET_WM_CM"
/// gives that of _NET_WM_CM_S0.
[[nodiscard]] xcb_atom_t managerSelection(xcb_connection_t* connection, std::string_view prefix);

/// Has the server send an XFixes event on this connection each time that the selection gets another
/// owner or loses its owner. The server must have the XFixes extension.
void selectOwnerEvents(xcb_connection_t* connection, xcb_window_t root, xcb_atom_t selection);

/// A connection to the X server of its own, used by one thread that sleeps until the server has
/// sent something or another thread rings. A server that dies makes it dead and never ends the
/// program.
class X11Connection {
public:
    using Time = std::chrono::steady_clock::time_point;

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

    /// Ends the present or else the next sleep. From any thread.
    void ring() const;

    /// Sends what is buffered and sleeps until something arrives, ring() or the deadline. Events
    /// and replies that xcb has already queued do not end the sleep: take them first.
    void sleep(std::optional<Time> deadline) const;

private:
    X11Connection(xcb_connection_t* connection, xcb_window_t root, int bell);

    xcb_connection_t* connection_;
    xcb_window_t root_;
    int bell_; ///< an eventfd
};

} // namespace quillon
