#pragma once

#include "platform/linux/pasteboard/Bell.h"
#include "platform/linux/wayland/LibWayland.h"

#include <memory>

namespace quillon {

struct ProxyDeleter {
    void operator()(wl_proxy* proxy) const { wl_proxy_destroy(proxy); }
};

/// Owns an object of a protocol on this side of the connection. The compositor is told nothing.
using ProxyPointer = std::unique_ptr<wl_proxy, ProxyDeleter>;

/// Has the events of `proxy` handled by `listener`, whose members are functions in the protocol's
/// order of events; each gets `data` and the proxy first.
template <typename Listener>
void listen(wl_proxy* proxy, const Listener& listener, void* data) {
    // The library never writes to it.
    auto* const functions = const_cast<Listener*>(&listener);
    wl_proxy_add_listener(proxy, reinterpret_cast<void (**)()>(functions), data);
}

/// A separate connection to a Wayland compositor, for one thread. If the compositor dies, the
/// connection is dead, but the program goes on.
class WaylandConnection {
public:
    /// Connects to `display` (null: what $WAYLAND_DISPLAY names, else "wayland-0"); null when no
    /// compositor listens there, or the library is missing. Does not wait for an answer.
    [[nodiscard]] static std::unique_ptr<WaylandConnection> open(const char* display);

    WaylandConnection(const WaylandConnection&) = delete;
    WaylandConnection& operator=(const WaylandConnection&) = delete;
    /// Of its objects there must be none left.
    ~WaylandConnection() { wl_display_disconnect(display_); }

    /// The object from which all others come.
    [[nodiscard]] wl_proxy* display() const { return reinterpret_cast<wl_proxy*>(display_); }

    /// False once the compositor is gone or has found a fault; it stays so.
    [[nodiscard]] bool alive() const { return wl_display_get_error(display_) == 0; }

    /// Has the listeners handle everything that has arrived. Never waits.
    void dispatch() const;

    /// Sends what is buffered and sleeps until something arrives, here or at the other descriptor
    /// (if not negative), the bell or the deadline. Dispatch first: what has been received does not
    /// end the sleep.
    void sleep(const Bell& bell, int other, std::optional<Bell::Time> deadline) const;

private:
    explicit WaylandConnection(wl_display* display) : display_{display} {}

    wl_display* display_;
};

} // namespace quillon
