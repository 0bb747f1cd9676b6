#pragma once

#include "platform/Pasteboard.h"

#include <wayland-util.h>

#include <cstdint>

namespace quillon {

/// A protocol by which programs without a window manage the clipboard: ext-data-control-v1 of
/// wayland-protocols, or what it was made of, wlr-data-control-unstable-v1. They differ in nothing
/// but the names of their objects. These are the parts that reading takes; requests and events have
/// their places.
struct DataControlProtocol {
    ClipboardWay way;
    std::uint32_t version;       ///< the newest one whose events are known here
    const wl_interface* manager; ///< gives a device for a seat
    const wl_interface* device;  ///< tells which offer is on the clipboard
    const wl_interface* offer;   ///< what was copied: its formats, and its bytes
};

[[nodiscard]] const DataControlProtocol& extDataControl();
[[nodiscard]] const DataControlProtocol& wlrDataControl();

/// The requests' places in the protocols' order.
namespace DataControl {
inline constexpr std::uint32_t getDataDevice = 1; ///< of the manager
inline constexpr std::uint32_t receive = 0;       ///< of an offer
inline constexpr std::uint32_t destroyOffer = 1;
} // namespace DataControl

} // namespace quillon
