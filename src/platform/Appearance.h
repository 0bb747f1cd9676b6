#pragma once

#include <functional>
#include <optional>

namespace quillon {

/// What the user has chosen about the looks of the desktop and of all programs on it.
struct DesktopLooks {
    enum class Scheme { noPreference, light, dark };

    Scheme scheme = Scheme::noPreference;
    /// Whether things may move; nothing where the desktop does not say.
    std::optional<bool> animations{};
    /// How much larger than usual texts are, from 1 to 1.5.
    double textScale = 1;

    bool operator==(const DesktopLooks&) const = default;
};

/// Knows the looks of the desktop while they change.
class Appearance {
public:
    virtual ~Appearance() = default;

    /// Calls `changed` when it has been found out what the desktop says, and each time that this
    /// changes; never from within this call. Where nobody tells, it is never called.
    virtual void follow(std::function<void(const DesktopLooks&)> changed) = 0;
};

} // namespace quillon
