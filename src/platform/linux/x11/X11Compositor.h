#pragma once

#include "platform/Compositor.h"
#include "platform/linux/x11/X11ManagerSelection.h"

namespace quillon {

/// Knows whether a compositing manager runs on the X server; any other display always blends
/// windows. To be made after the application object.
class X11Compositor : public Compositor {
public:
    [[nodiscard]] bool active() const override {
        return !manager_.isFollowed() || manager_.isOwned();
    }

private:
    X11ManagerSelection manager_{"_NET_WM_CM"};
};

} // namespace quillon
