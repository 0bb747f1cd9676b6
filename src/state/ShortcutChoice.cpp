#include "state/ShortcutChoice.h"

namespace quillon {

namespace {

constexpr std::array<std::string_view, allShortcutChoices.size()> letters{"V", "P", "C"};

} // namespace

std::array<std::string_view, 3> keys(ShortcutChoice choice) {
    return {"⌃", "⌥", letters.at(static_cast<std::size_t>(choice))};
}

std::string keysText(ShortcutChoice choice) {
    std::string text;
    for (const std::string_view key : keys(choice)) {
        text += key;
    }
    return text;
}

} // namespace quillon
