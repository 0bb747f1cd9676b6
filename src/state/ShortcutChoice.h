#pragma once

#include "base/RawValue.h"

#include <string>

namespace quillon {

/// The global shortcut; the order is that of the shortcut picker.
enum class ShortcutChoice { ctrlOptV, ctrlOptP, ctrlOptC };

/// How the choice is stored in config.json.
template <>
inline constexpr std::array<std::string_view, 3> rawValues<ShortcutChoice>{"ctrlOptV", "ctrlOptP",
                                                                           "ctrlOptC"};

inline constexpr auto allShortcutChoices = allValues<ShortcutChoice>;

/// The labels of the key caps, modifiers first.
[[nodiscard]] std::array<std::string_view, 3> keys(ShortcutChoice choice);

/// The key caps joined with nothing between them, as messages name the shortcut.
[[nodiscard]] std::string keysText(ShortcutChoice choice);

} // namespace quillon
