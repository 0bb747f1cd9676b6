#pragma once

#include <exception>
#include <string>
#include <utility>

namespace quillon {

/// A failure the user must act on. Its message is a finished sentence, shown as it is.
struct TelegramError : std::exception {
    explicit TelegramError(std::string sentence) : message{std::move(sentence)} {}

    [[nodiscard]] const char* what() const noexcept override { return message.c_str(); }

    std::string message;
};

/// How the message of a failed transfer begins.
inline constexpr std::string_view unreachable = "Couldn't reach Telegram";

} // namespace quillon
