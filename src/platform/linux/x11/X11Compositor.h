#pragma once

#include "platform/Compositor.h"

namespace quillon {

/// Asks the X server whether a compositing manager runs; on any other display there always is one.
class X11Compositor : public Compositor {
public:
    [[nodiscard]] bool active() const override;
};

} // namespace quillon
