#pragma once

#include "platform/Compositor.h"

namespace quillon::test {

/// A desktop that blends windows, or does not, as the test says.
struct FakeCompositor : Compositor {
    explicit FakeCompositor(bool blends = false) : blending{blends} {}
    [[nodiscard]] bool active() const override { return blending; }

    bool blending;
};

} // namespace quillon::test
