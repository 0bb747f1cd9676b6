#pragma once

#include <chrono>
#include <optional>

namespace quillon {

/// The duration of the animation that shows a change of state.
inline constexpr std::chrono::milliseconds changeDuration{200};

/// Whether things may move: what setAnimationsEnabled() was told or, without that, what the style
/// does. Each animation asks when it starts, so that a change counts from the next one on.
[[nodiscard]] bool animationsEnabled();

/// Sets what the desktop's setting for animations says. Without a value the style decides again.
void setAnimationsEnabled(std::optional<bool> enabled);

} // namespace quillon
