#pragma once

#include "platform/linux/pasteboard/Bell.h"
#include "platform/linux/wayland/LibWayland.h"

#include <memory>

namespace quillon {

/// A separate connection to a Wayland compositor, for one thread. If the compositor dies, the
/// connection is dead, but the program goes on.
class WaylandConnection {
public:
    /// Connects to `display` (null: what $WAYLAND_DISPLAY names, else "wayland-0"); null when no
    /// compositor listens there, or the library is missing. Waits for none that hangs.
    [[nodiscard]] static std::unique_ptr<WaylandConnection> open(const char* display = nullptr);

    WaylandConnection(const WaylandConnection&) = delete;
    WaylandConnection& operator=(const WaylandConnection&) = delete;
    /// Of its objects there must be none left.
    ~WaylandConnection() { wl_display_disconnect(display_); }

    /// The object from which all others come.
    [[nodiscard]] wl_proxy* display() const { return reinterpret_cast<wl_proxy*>(display_); }

    /// False once the compositor is gone or has found a fault; it stays so.
    [[nodiscard]] bool alive() const { return wl_display_get_error(display_) == 0; }

    /// Becomes readable when something arrives.
    [[nodiscard]] int descriptor() const { return wl_display_get_fd(display_); }

    /// Has the listeners handle everything that has arrived. Never waits.
    void dispatch() const;

    /// Sends what is buffered; false where the compositor takes no more now, or nothing any more.
    bool flush() const { return wl_display_flush(display_) >= 0; }

    /// Sends what is buffered and sleeps until something arrives, here or at the other descriptor
    /// (if not negative), the bell or the deadline. Dispatch first: what has been received does not
    /// end the sleep.
    void sleep(const Bell& bell, int other, std::optional<Bell::Time> deadline) const;

private:
    explicit WaylandConnection(wl_display* display) : display_{display} {}

    wl_display* display_;
};

} // namespace quillon
