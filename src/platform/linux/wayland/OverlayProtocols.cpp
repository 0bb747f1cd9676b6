#include "platform/linux/wayland/OverlayProtocols.h"

#include <array>

namespace quillon {
namespace {

/// The interfaces of a message's arguments, as many as any here has. Those of the objects in a
/// request are looked at by nobody, save that of the new one.
using Types = std::array<const wl_interface*, 5>;
constexpr Types none{};
constexpr Types newLayerSurface{&layerSurface::interface};
constexpr Types newViewport{&viewport::interface};
constexpr Types newFractionalScale{&fractionalScale::interface};

/// A message: its arguments are unsigned (u), signed (i) and fixed-point (f) numbers, texts (s),
/// objects (o) and new objects (n), which may be null (?), with the version (a digit) that has
/// brought it.
constexpr wl_message message(const char* name, const char* arguments, const Types& types = none) {
    // Only C's way to say "unchanged" is missing in this type.
    return {name, arguments, const_cast<const wl_interface**>(types.data())};
}

constexpr std::array layerShellRequests{
    message("get_layer_surface", "no?ous", newLayerSurface),
    message("destroy", "3"),
};
constexpr std::array layerSurfaceRequests{
    message("set_size", "uu"),
    message("set_anchor", "u"),
    message("set_exclusive_zone", "i"),
    message("set_margin", "iiii"),
    message("set_keyboard_interactivity", "u"),
    message("get_popup", "o"),
    message("ack_configure", "u"),
    message("destroy", ""),
};
constexpr std::array layerSurfaceEvents{message("configure", "uuu"), message("closed", "")};

constexpr std::array viewporterRequests{
    message("destroy", ""),
    message("get_viewport", "no", newViewport),
};
constexpr std::array viewportRequests{
    message("destroy", ""),
    message("set_source", "ffff"),
    message("set_destination", "ii"),
};

constexpr std::array fractionalScaleManagerRequests{
    message("destroy", ""),
    message("get_fractional_scale", "no", newFractionalScale),
};
constexpr std::array fractionalScaleRequests{message("destroy", "")};
constexpr std::array fractionalScaleEvents{message("preferred_scale", "u")};

template <typename Requests, typename Events = std::array<wl_message, 0>>
constexpr wl_interface describe(const char* name, int version, const Requests& requests,
                                const Events& events = {}) {
    return {name,
            version,
            static_cast<int>(requests.size()),
            requests.data(),
            static_cast<int>(events.size()),
            events.data()};
}

} // namespace

constinit const wl_interface layerShell::interface =
    describe("zwlr_layer_shell_v1", 4, layerShellRequests);
constinit const wl_interface layerSurface::interface =
    describe("zwlr_layer_surface_v1", 4, layerSurfaceRequests, layerSurfaceEvents);
constinit const wl_interface viewporter::interface =
    describe("wp_viewporter", 1, viewporterRequests);
constinit const wl_interface viewport::interface = describe("wp_viewport", 1, viewportRequests);
constinit const wl_interface fractionalScaleManager::interface =
    describe("wp_fractional_scale_manager_v1", 1, fractionalScaleManagerRequests);
constinit const wl_interface fractionalScale::interface =
    describe("wp_fractional_scale_v1", 1, fractionalScaleRequests, fractionalScaleEvents);

} // namespace quillon
