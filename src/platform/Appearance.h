#pragma once

#include <functional>
#include <optional>

namespace quillon {

/// How the user wants the desktop and all programs on it to look.
struct Appearance {
    enum class Scheme { noPreference, light, dark };

    Scheme scheme = Scheme::noPreference;
    /// Whether things may move; nothing where the desktop does not say.
    std::optional<bool> animations{};
    /// How much larger than usual texts are, from 1 to 1.5.
    double textScale = 1;

    bool operator==(const Appearance&) const = default;
};

/// Tells the desktop's appearance, now and whenever it changes.
class AppearanceSource {
public:
    virtual ~AppearanceSource() = default;

    /// Calls `changed` once the desktop has answered and again after each change, but never from
    /// within this call. On a desktop that does not answer, `changed` is never called.
    virtual void follow(std::function<void(const Appearance&)> changed) = 0;
};

} // namespace quillon
