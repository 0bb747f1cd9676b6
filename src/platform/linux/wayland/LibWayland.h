#pragma once

#include "base/LateLibrary.h"

#include <wayland-client-core.h>

namespace quillon {

/// What speaks Wayland's protocols, which X11 desktops have no use for. Of its headers, the
/// functions that are written out in wayland-client-protocol.h are not to be called: they call
/// those of a library that is linked.
inline constinit const LateLibrary libwayland{QUILLON_WAYLAND};

QUILLON_LATE(libwayland, wl_display_connect_to_fd);
QUILLON_LATE(libwayland, wl_display_disconnect);
QUILLON_LATE(libwayland, wl_display_dispatch_pending);
QUILLON_LATE(libwayland, wl_display_flush);
QUILLON_LATE(libwayland, wl_display_get_error);
QUILLON_LATE(libwayland, wl_display_get_fd);
QUILLON_LATE(libwayland, wl_display_prepare_read);
QUILLON_LATE(libwayland, wl_display_read_events);
QUILLON_LATE(libwayland, wl_proxy_add_listener);
QUILLON_LATE(libwayland, wl_proxy_destroy);
QUILLON_LATE(libwayland, wl_proxy_get_version);
QUILLON_LATE(libwayland, wl_proxy_marshal_flags);

/// One of the interfaces of the core protocol, as in "wl_seat_interface".
[[nodiscard]] inline const wl_interface& coreInterface(const char* name) {
    return *static_cast<const wl_interface*>(libwayland.find(name));
}

} // namespace quillon
