#include "send/Message.h"

#include <algorithm>

namespace quillon {

std::vector<std::string> textMessages(std::string_view text) {
    std::vector<std::string_view> pieces = chunks(text, messageLimit);
    if (std::ranges::any_of(pieces, hasVisibleText)) {
        std::erase_if(pieces, [](std::string_view piece) { return !hasVisibleText(piece); });
    }
    std::vector<std::string> messages;
    messages.reserve(pieces.size());
    for (const std::string_view chunk : pieces) {
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
    return std::string{prefix(firstLine(text), titleLimit)};
}

} // namespace quillon
