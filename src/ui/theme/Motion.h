#pragma once

#include <chrono>
#include <optional>

namespace quillon {

/// How long a change of state takes to show, with an ease-in-out curve.
inline constexpr std::chrono::milliseconds changeDuration{200};

/// Whether things may move: what setAnimationsEnabled() said or, as long as it said nothing, what
/// the style does. Asked at the start of each movement; nothing remembers the answer.
[[nodiscard]] bool animationsEnabled();

/// What the desktop's "reduce animations" setting says, where somebody reads it; nothing goes back
/// to the style's answer.
void setAnimationsEnabled(std::optional<bool> enabled);

} // namespace quillon
