#pragma once

#include "base/RawValue.h"
#include "state/TopicKind.h"

#include <cstdint>
#include <optional>

namespace quillon {

/// What set a send off.
enum class Trigger { shortcut, button, command };

template <>
inline constexpr std::array<std::string_view, 3> rawValues<Trigger>{"shortcut", "button",
                                                                    "command"};

/// Why an item was not sent.
enum class SendFailure { folder, unreadable, tooBig, noInternet, telegramError };

template <>
inline constexpr std::array<std::string_view, 5> rawValues<SendFailure>{
    "folder", "unreadable", "too_big", "no_internet", "telegram_error"};

/// What one item's send looked like, for the usage events alone, which write all of it as words.
struct SendInfo {
    TopicKind kind = TopicKind::files;
    /// UTF-8 length of a text, length of the PNG data, or size of a file; 0 for a folder or a file
    /// that could not be read.
    std::int64_t bytes = 0;
    /// Absent when the item was sent.
    std::optional<SendFailure> reason{};

    bool operator==(const SendInfo&) const = default;
};

} // namespace quillon
