#pragma once

#include "platform/Compositor.h"
#include "platform/Overlay.h"

#include <QImage>

#include <optional>
#include <utility>

namespace quillon::test {

/// Remembers what it was to show.
struct FakeOverlay : Overlay {
    void show(Picture picture) override { shown = std::move(picture); }
    void setOpacity(double now) override { opacity = now; }
    void hide() override { shown.reset(); }

    std::optional<Picture> shown;
    double opacity = 0;
};

/// A desktop that blends windows, or does not, as the test says.
struct FakeCompositor : Compositor {
    explicit FakeCompositor(bool blends = false) : blending{blends} {}
    [[nodiscard]] bool active() const override { return blending; }

    [[nodiscard]] Overlay* overlay() const override { return layer; }

    bool blending;
    Overlay* layer = nullptr;
};

} // namespace quillon::test
