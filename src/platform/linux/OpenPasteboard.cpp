#include "platform/linux/OpenPasteboard.h"

#include "platform/linux/pasteboard/ThreadedPasteboard.h"
#include "platform/linux/shortcut/FoundSession.h"
#include "platform/linux/wayland/DataControlReader.h"
#include "platform/linux/x11/SelectionReader.h"

namespace quillon {

namespace {

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
        [wayland = foundSession().wayland](const ReaderHost& host) {
            return openReader(host, wayland);
        });
}

} // namespace quillon
