#pragma once

#include "platform/HotKeys.h"
#include "state/ShortcutChoice.h"

#include <string>

namespace quillon {

/// Where the state of the shortcut is told: in the settings, which have what the state offers, or
/// elsewhere.
enum class ShortcutPlace { settings, panel };

/// Tells the user what has become of the shortcut; empty where there is nothing to tell, and for
/// one that another program has, of which each place has words of its own. The keys that the
/// desktop names in it come from outside.
[[nodiscard]] std::string shortcutSentence(const HotKeyState& state, ShortcutChoice choice,
                                           ShortcutPlace place);

/// Whether the user can and should do something about it.
[[nodiscard]] bool wantsAttention(const HotKeyState& state);

} // namespace quillon
