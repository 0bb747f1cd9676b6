#pragma once

#include "platform/HotKeys.h"
#include "platform/linux/shortcut/ShortcutRules.h"

#include <string>
#include <string_view>

namespace quillon {

/// The program's key binding among those that the user has given commands in GNOME's settings. All
/// of this may take tens of milliseconds, and can be called on any thread.
namespace gnomeBinding {

/// Looks for the binding of the key. One that is there is made to run `command`, which differs once
/// the program has moved; those of other keys are removed, so that one shortcut is bound at a time.
/// One that the user has made, on whatever keys, will do as well, and stays as it is.
[[nodiscard]] BindingReport follow(PhysicalKey key, const std::string& command);

/// Adds the binding with this name for people, unless another has its keys.
[[nodiscard]] BindingReport add(PhysicalKey key, const std::string& command,
                                const std::string& name);

/// Removes all that add() has ever made.
void removeAll();

} // namespace gnomeBinding

/// Whether two accelerators as GNOME writes them ("<Control><Alt>v") are the same keys, however
/// they are spelt. None is like no other.
[[nodiscard]] bool areSameKeys(std::string_view one, std::string_view other);

/// The accelerator for people: "Ctrl+Alt+V".
[[nodiscard]] std::string shownKeys(std::string_view accelerator);

} // namespace quillon
