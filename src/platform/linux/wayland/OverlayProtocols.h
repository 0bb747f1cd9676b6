#pragma once

#include "platform/linux/wayland/LibWayland.h"

#include <cstdint>
#include <memory>

/// What the banner's layer needs of Wayland's protocol extensions, as data: libwayland works with
/// any interface whose requests and events are described to it. Requests and events are numbered by
/// their order.
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

/// Forgets an object that has no such request.
struct ForgettingDeleter {
    void operator()(wl_proxy* proxy) const { wl_proxy_destroy(proxy); }
};
using WaylandReference = std::unique_ptr<wl_proxy, ForgettingDeleter>;

/// Lays surfaces above or below all windows: wlr-layer-shell, up to version 4.
namespace layerShell {
extern const wl_interface interface;
enum Request : std::uint32_t { getLayerSurface };
constexpr std::uint32_t overlay = 3; ///< the layer above everything
} // namespace layerShell

namespace layerSurface {
extern const wl_interface interface;
enum Request : std::uint32_t {
    setSize,
    setAnchor,
    setExclusiveZone,
    setMargin,
    setKeyboardInteractivity,
    getPopup,
    acknowledge,
    destroy,
};
enum Anchor : std::uint32_t { nowhere = 0, top = 1, bottom = 2 };
struct Listener {
    void (*configure)(void* data, wl_proxy* surface, std::uint32_t serial, std::uint32_t width,
                      std::uint32_t height);
    void (*closed)(void* data, wl_proxy* surface);
};
using Pointer = WaylandPointer<destroy>;
} // namespace layerSurface

/// Gives a surface a size that is not that of its buffer: viewporter.
namespace viewporter {
extern const wl_interface interface;
enum Request : std::uint32_t { destroy, getViewport };
} // namespace viewporter

namespace viewport {
enum Request : std::uint32_t { destroy, setSource, setDestination };
using Pointer = WaylandPointer<destroy>;
extern const wl_interface interface;
} // namespace viewport

/// Tells a surface its scale where that is no whole number: fractional-scale-v1.
namespace fractionalScaleManager {
extern const wl_interface interface;
enum Request : std::uint32_t { destroy, getFractionalScale };
} // namespace fractionalScaleManager

namespace fractionalScale {
extern const wl_interface interface;
enum Request : std::uint32_t { destroy };
struct Listener {
    /// In parts of 120.
    void (*preferred)(void* data, wl_proxy* scale, std::uint32_t parts);
};
constexpr double parts = 120;
using Pointer = WaylandPointer<destroy>;
} // namespace fractionalScale

} // namespace quillon
