#include "platform/linux/wayland/WaylandConnection.h"

namespace quillon {

std::unique_ptr<WaylandConnection> WaylandConnection::open(const char* display) {
    if (!libwayland.load()) return nullptr;
    wl_display* const connected = wl_display_connect(display);
    if (connected == nullptr) return nullptr;
    return std::unique_ptr<WaylandConnection>{new WaylandConnection{connected}};
}

void WaylandConnection::dispatch() const {
    while (wl_display_prepare_read(display_) != 0) {
        if (wl_display_dispatch_pending(display_) < 0) return;
    }
    wl_display_read_events(display_); // without anything to read it returns at once
    wl_display_dispatch_pending(display_);
}

void WaylandConnection::sleep(const Bell& bell, int other,
                              std::optional<Bell::Time> deadline) const {
    wl_display_flush(display_);
    // A dead compositor's socket is always readable, so it is replaced by a negative number.
    bell.sleep({alive() ? wl_display_get_fd(display_) : -1, other}, deadline);
}

} // namespace quillon
