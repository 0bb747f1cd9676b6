#include "platform/linux/x11/X11Compositor.h"

namespace quillon {

bool X11Compositor::active() const {
    return !manager_.isFollowed() || manager_.isOwned();
}

} // namespace quillon
