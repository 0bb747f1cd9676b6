#pragma once

#include <exception>
#include <string>
#include <utility>

namespace quillon {

/// A failure the user must act on. Its message is a finished sentence, shown as it is.
struct TelegramError : std::exception {
    enum class Cause {
        refused,
        unreachable,
        token, ///< Telegram knows no bot with this token
    };

    explicit TelegramError(std::string sentence, Cause why = Cause::refused)
        : message{std::move(sentence)},
          cause{why} {}

    [[nodiscard]] const char* what() const noexcept override { return message.c_str(); }

    std::string message;
    Cause cause;
};

/// The caller has asked to stop before the request went out.
struct Stopped : std::exception {
    [[nodiscard]] const char* what() const noexcept override { return "stopped"; }
};

} // namespace quillon
