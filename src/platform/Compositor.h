#pragma once

namespace quillon {

class Overlay;

/// Tells whether the desktop blends windows. If it does not, windows have no shadow, transparency
/// or fading, and unpainted areas are black.
class Compositor {
public:
    virtual ~Compositor() = default;

    /// Cheap; ask each time a window is about to show, because the answer may change at any time.
    [[nodiscard]] virtual bool active() const = 0;

    /// What the desktop has for pictures over all windows; null where windows serve. It lives as
    /// long as this object, but ask each time: a desktop that fails has it no more.
    [[nodiscard]] virtual Overlay* overlay() const { return nullptr; }
};

} // namespace quillon
