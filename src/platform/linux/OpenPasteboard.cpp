#include "platform/linux/OpenPasteboard.h"

#include "base/Environment.h"
#include "platform/linux/pasteboard/ThreadedPasteboard.h"
#include "platform/linux/wayland/DataControlReader.h"
#include "platform/linux/x11/SelectionReader.h"

namespace quillon {

namespace {

/// Whether there may be a compositor. X11 desktops do not even look for one.
bool isWaylandNamed() {
    return environment("WAYLAND_DISPLAY") || environment("XDG_SESSION_TYPE") == "wayland";
}

std::unique_ptr<ClipboardReader> openReader(const ReaderHost& host, bool wayland) {
    if (wayland) {
        if (auto reader = DataControlReader::open(nullptr, host)) return reader;
    }
    // Compositors without data-control, such as GNOME's, hand over to Xwayland whatever is copied.
    return SelectionReader::open(nullptr, host);
}

} // namespace

std::unique_ptr<Pasteboard> openPasteboard() {
    return std::make_unique<ThreadedPasteboard>(
        [wayland = isWaylandNamed()](const ReaderHost& host) { return openReader(host, wayland); });
}

} // namespace quillon
