#pragma once

#include "base/Json.h"
#include "platform/HttpTransport.h"

#include <chrono>
#include <string>
#include <variant>

namespace quillon {

/// The method's result; JSON null when the reply has none.
struct Success {
    Json result;
};

/// Telegram asks to wait before the same call is made again (flood control).
struct Wait {
    std::chrono::seconds duration;
};

/// The sentence for the user.
struct Refusal {
    std::string message;
    /// It is the bot's token that was refused.
    bool ofToken = false;
};

using Verdict = std::variant<Success, Wait, Refusal>;

/// The client waits for less than this. A call that is told to wait longer fails with Telegram's
/// description.
inline constexpr std::chrono::seconds longestWait{60};

/// What a reply of the Bot API means. Its envelope is {"ok", "result", "description", "error_code",
/// "parameters": {"retry_after" (seconds)}}; the HTTP status counts only without one.
[[nodiscard]] Verdict judge(const HttpReply& reply);

} // namespace quillon
