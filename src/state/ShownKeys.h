#pragma once

#include "state/ShortcutChoice.h"

#include <array>
#include <string>

/// The shortcut's keys as they are shown to the user. Usage events and files have the symbols of
/// state/ShortcutChoice instead.
namespace quillon {

/// The labels of the key caps, modifiers first, as keyboards have them where the user's language is
/// written.
[[nodiscard]] std::array<std::string, 3> shownKeys(ShortcutChoice choice);

/// The shortcut as messages name it, such as "Ctrl+Alt+V".
[[nodiscard]] std::string shownKeysText(ShortcutChoice choice);

} // namespace quillon
