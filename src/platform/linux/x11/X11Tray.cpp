#include "platform/linux/x11/X11Tray.h"

#include <xcb/xcb.h>

#include <array>
#include <cstring>

namespace quillon {

X11Tray::X11Tray() {
    connect(&selection_, &X11ManagerSelection::ownerChanged, this, &X11Tray::changed);
    connect(&selection_, &X11ManagerSelection::propertyChanged, this, &X11Tray::recoloured);
}

std::optional<QColor> X11Tray::foreground() const {
    // Of the tray's colours, the first is that of text and symbols: red, green and blue up to
    // 65535.
    std::array<std::uint32_t, 3> rgb{};
    const auto [type, format, bytes] = selection_.property(rgb.size());
    if (type != XCB_ATOM_CARDINAL || format != 32 || bytes.size() < qsizetype{sizeof rgb})
        return std::nullopt;
    std::memcpy(rgb.data(), bytes.constData(), sizeof rgb);
    return QColor::fromRgba64(static_cast<quint16>(rgb[0]), static_cast<quint16>(rgb[1]),
                              static_cast<quint16>(rgb[2]));
}

} // namespace quillon
