#include "platform/linux/wayland/OverlayProtocols.h"

#include <array>

namespace quillon {
namespace {

/// Arguments that are no objects, as many as any request or event here has.
constexpr std::array<const wl_interface*, 5> plain{};
// The rest are those of each message that has objects. The type of a popup is never looked at.
constexpr std::array<const wl_interface*, 5> newLayerSurface{
    &layerSurface::interface, &wl_surface_interface, &wl_output_interface, nullptr, nullptr};
constexpr std::array newViewport{&viewport::interface, &wl_surface_interface};
constexpr std::array newFractionalScale{&fractionalScale::interface, &wl_surface_interface};

/// A message: its arguments are unsigned (u), signed (i) and fixed-point (f) numbers, texts (s),
/// objects (o) and new objects (n), which may be null (?), with the version (a digit) that has
/// brought it.
constexpr wl_message message(const char* name, const char* arguments,
                             const wl_interface* const* types = plain.data()) {
    // Only C's way to say "unchanged" is missing in this type.
    return {name, arguments, const_cast<const wl_interface**>(types)};
}

constexpr std::array layerShellRequests{
    message("get_layer_surface", "no?ous", newLayerSurface.data()),
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
    message("get_viewport", "no", newViewport.data()),
};
constexpr std::array viewportRequests{
    message("destroy", ""),
    message("set_source", "ffff"),
    message("set_destination", "ii"),
};

constexpr std::array fractionalScaleManagerRequests{
    message("destroy", ""),
    message("get_fractional_scale", "no", newFractionalScale.data()),
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
