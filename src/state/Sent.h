#pragma once

#include <QUuid>

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// A moment as history.json keeps it: seconds with their fraction.
using Date = std::chrono::time_point<std::chrono::system_clock, std::chrono::duration<double>>;

/// One entry of the send history: an item that was sent, or that failed.
struct Sent {
    QUuid id;
    /// Name of the symbol for the kind of content.
    std::string symbol;
    /// One line that describes the item.
    std::string title;
    /// Display name of the topic, as it was at the time.
    std::string topic;
    Date date;
    /// Absent when the item was sent, else the sentence the user was shown.
    std::optional<std::string> error;
    /// Its messages were deleted again. undo.json keeps that, for history.json has no place for it.
    bool takenBack = false;

    bool operator==(const Sent&) const = default;
};

/// How many entries history.json keeps, the newest.
inline constexpr std::size_t historyLimit = 30;

/// The content of history.json: the first 30 entries as one compact JSON array, "date" in seconds
/// since 2001-01-01 00:00:00 UTC, an absent "error" left out.
[[nodiscard]] std::string encodeHistory(const std::vector<Sent>& history);

/// Reads history.json, all or nothing: one unusable entry makes the whole list empty.
[[nodiscard]] std::vector<Sent> decodeHistory(std::string_view bytes);

} // namespace quillon
