#include "send/Message.h"

namespace quillon {

std::vector<std::string> textMessages(std::string_view text) {
    std::vector<std::string> messages;
    for (const std::string_view chunk : chunks(text, messageLimit)) {
        if (trimmed(chunk).empty()) continue;
        messages.push_back("<pre>" + escapedHtml(chunk) + "</pre>");
    }
    return messages;
}

std::optional<std::string> caption(const std::optional<std::string>& text) {
    const std::string_view visible = trimmed(text ? std::string_view{*text} : std::string_view{});
    if (visible.empty()) return std::nullopt;
    return std::string{prefix(visible, captionLimit)};
}

std::string textTitle(std::string_view text) {
    return std::string{firstCharacters(firstLine(text), titleLength)};
}

} // namespace quillon
