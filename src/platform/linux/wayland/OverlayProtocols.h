#pragma once

#include "platform/linux/wayland/Proxy.h"

/// What the banner's layer needs of Wayland's protocol extensions, as data: libwayland works with
/// any interface whose requests and events are described to it. Requests and events are numbered by
/// their order.
namespace quillon {

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
