#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace quillon {

/// The global shortcut; the order is that of the shortcut picker.
enum class ShortcutChoice { ctrlOptV, ctrlOptP, ctrlOptC };

inline constexpr std::array allShortcutChoices{ShortcutChoice::ctrlOptV, ShortcutChoice::ctrlOptP,
                                               ShortcutChoice::ctrlOptC};

/// How the choice is stored in config.json.
[[nodiscard]] std::string_view rawValue(ShortcutChoice choice);
[[nodiscard]] std::optional<ShortcutChoice> shortcutChoice(std::string_view rawValue);

/// The labels of the key caps, modifiers first.
[[nodiscard]] std::array<std::string_view, 3> keys(ShortcutChoice choice);

/// The key caps joined with nothing between them, as messages name the shortcut.
[[nodiscard]] std::string keysText(ShortcutChoice choice);

} // namespace quillon
