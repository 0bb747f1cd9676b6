#include "state/ShownKeys.h"

#include "base/Translate.h"

namespace quillon {

std::array<std::string, 3> shownKeys(ShortcutChoice choice) {
    return {translate("Shortcut", "⌃"), translate("Shortcut", "⌥"),
            std::string{keys(choice).back()}};
}

std::string shownKeysText(ShortcutChoice choice) {
    return filled(translate("Shortcut", "⌃⌥%1"), {keys(choice).back()});
}

} // namespace quillon
