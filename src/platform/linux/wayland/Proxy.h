#pragma once

#include "platform/linux/wayland/LibWayland.h"

#include <cstdint>
#include <memory>

/// The objects of Wayland's protocols, as both parts of the program that speak them use them.
namespace quillon {

/// Sends a request that makes no object.
template <typename... Arguments>
void request(wl_proxy* proxy, std::uint32_t number, Arguments... arguments) {
    wl_proxy_marshal_flags(proxy, number, nullptr, wl_proxy_get_version(proxy), 0, arguments...);
}

/// Sends a request whose first argument is a new object of this interface, and gives that.
template <typename... Arguments>
[[nodiscard]] wl_proxy* requestNew(const wl_interface& interface, wl_proxy* proxy,
                                   std::uint32_t number, Arguments... arguments) {
    return wl_proxy_marshal_flags(proxy, number, &interface, wl_proxy_get_version(proxy), 0,
                                  nullptr, arguments...);
}

/// Has the functions of the listener, which come in the order of the interface's events, called
/// with `data`.
template <typename Listener>
void listenTo(wl_proxy* proxy, const Listener& listener, void* data) {
    // Only C's way to say "unchanged", and to say "any function", is missing in this type.
    wl_proxy_add_listener(proxy, reinterpret_cast<void (**)()>(const_cast<Listener*>(&listener)),
                          data);
}

/// Destroys an object by its request of this number.
template <std::uint32_t number>
struct RequestDeleter {
    void operator()(wl_proxy* proxy) const {
        wl_proxy_marshal_flags(proxy, number, nullptr, wl_proxy_get_version(proxy),
                               WL_MARSHAL_FLAG_DESTROY);
    }
};
template <std::uint32_t destroy>
using WaylandPointer = std::unique_ptr<wl_proxy, RequestDeleter<destroy>>;

/// Forgets an object of which the compositor is told nothing.
struct ProxyDeleter {
    void operator()(wl_proxy* proxy) const { wl_proxy_destroy(proxy); }
};
using ProxyPointer = std::unique_ptr<wl_proxy, ProxyDeleter>;

} // namespace quillon
