#pragma once

namespace quillon {

/// Tells whether the desktop blends windows. If it does not, windows have no shadow, transparency
/// or fading, and unpainted areas are black.
class Compositor {
public:
    virtual ~Compositor() = default;

    /// Cheap; ask each time a window is about to show, because the answer may change at any time.
    [[nodiscard]] virtual bool active() const = 0;
};

} // namespace quillon
