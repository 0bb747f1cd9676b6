#pragma once

namespace quillon {

/// Tells whether the desktop blends windows: without that there is no shadow, no see-through and no
/// fading, and what is not painted is black.
class Compositor {
public:
    virtual ~Compositor() = default;

    /// Cheap enough to ask each time a window is about to show; it may change at any time.
    [[nodiscard]] virtual bool active() const = 0;
};

} // namespace quillon
