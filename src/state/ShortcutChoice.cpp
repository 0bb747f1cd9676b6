#include "state/ShortcutChoice.h"

namespace quillon {

namespace {

struct Row {
    std::string_view rawValue;
    std::array<std::string_view, 3> keys;
};

constexpr std::array<Row, allShortcutChoices.size()> rows{{
    {"ctrlOptV", {"⌃", "⌥", "V"}},
    {"ctrlOptP", {"⌃", "⌥", "P"}},
    {"ctrlOptC", {"⌃", "⌥", "C"}},
}};

const Row& row(ShortcutChoice choice) {
    return rows.at(static_cast<std::size_t>(choice));
}

} // namespace

std::string_view rawValue(ShortcutChoice choice) {
    return row(choice).rawValue;
}

std::optional<ShortcutChoice> shortcutChoice(std::string_view raw) {
    for (const ShortcutChoice choice : allShortcutChoices) {
        if (rawValue(choice) == raw) return choice;
    }
    return std::nullopt;
}

std::array<std::string_view, 3> keys(ShortcutChoice choice) {
    return row(choice).keys;
}

std::string keysText(ShortcutChoice choice) {
    std::string text;
    for (const std::string_view key : keys(choice)) {
        text += key;
    }
    return text;
}

} // namespace quillon
