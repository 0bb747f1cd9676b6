#pragma once

#include "state/Sent.h"

#include <QUuid>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// The messages in which one item arrived, in the order sent.
struct ItemMessages {
    /// The id of the item's entry in the history.
    QUuid entry;
    /// Message ids of the Bot API; at least one.
    std::vector<std::int64_t> ids;

    bool operator==(const ItemMessages&) const = default;
};

/// What arrived of the last send and has not been taken back.
struct LastSend {
    /// The group's id.
    std::int64_t chat = 0;
    /// When the newest of the messages arrived.
    Date date;
    /// In the order sent; empty when there is nothing to take back.
    std::vector<ItemMessages> items;

    bool operator==(const LastSend&) const = default;

    /// How many messages there are.
    [[nodiscard]] std::size_t count() const;
    /// The messages of the item with this entry, 0 for one that has none.
    [[nodiscard]] std::size_t count(const QUuid& entry) const;
    /// Adds a message that arrived just now; beyond the limit, the oldest goes.
    void add(const QUuid& entry, std::int64_t message, Date now);
    /// Takes these messages out, those of them that are there. Gives the entries of which none are
    /// left.
    std::vector<QUuid> remove(std::span<const std::int64_t> ids);
};

/// What undo.json holds: history.json has no place for any of it.
struct UndoRecord {
    LastSend last;
    /// The ids of the entries in the history that were taken back.
    std::vector<QUuid> takenBack;

    bool operator==(const UndoRecord&) const = default;
};

/// How many messages of a send are remembered, the newest. Telegram lets a bot send twenty a minute
/// to a group, so that these took hours.
inline constexpr std::size_t lastSendLimit = 10'000;

/// Bots may delete messages that are younger than this (Bot API, deleteMessage).
inline constexpr std::chrono::hours undoLimit{48};

/// One compact JSON object: {"chat", "date" (seconds since 1970), "items": [{"entry", "messages"}],
/// "takenBack"}. Of "takenBack" there are as many as the history keeps.
[[nodiscard]] std::string encodeUndo(const UndoRecord& record);

/// Reads undo.json, all or nothing: what cannot be used is nothing to take back.
[[nodiscard]] UndoRecord decodeUndo(std::string_view bytes);

} // namespace quillon
