#pragma once

#include "state/Recipient.h"
#include "state/SendInfo.h"
#include "state/SendItem.h"
#include "state/Sent.h"

#include <QCoroTask>

#include <optional>
#include <stop_token>
#include <string>

namespace quillon {

struct Platform;

/// What sending one item came to: its entry in the history, and its record for the usage events.
struct SentItem {
    Sent entry;
    SendInfo info;
};

/// What the items of one send have in common.
struct Sending {
    /// Outlives the send.
    Platform& platform;
    Recipient recipient;
    /// Told how far each upload has come; may be empty.
    SendProgress progress;
    /// Once a stop is requested, nothing more is sent than what is on its way.
    std::stop_token stop{};
    /// Where all items go; without it, each goes to the topic of its kind.
    std::optional<TopicKind> topic{};
};

/// Sends the item to its topic. Never throws: a failure is in the entry's error. A text goes as one
/// message or, where it is longer than a message may be, several; an image as a photo, or as a
/// document where it is larger than photos may be; a file as a document. A folder, and a file that
/// is too large or cannot be read, are not sent.
[[nodiscard]] QCoro::Task<SentItem> sendItem(SendItem item, Sending sending);

/// The item as it stands in the history when it has not arrived because the send was ended.
[[nodiscard]] SentItem unsentItem(const SendItem& item, const Sending& sending,
                                  const std::string& error);

/// The Bot API's limit for files that bots upload, in bytes.
inline constexpr qint64 maximumFileSize = 50'000'000;

/// The error of an item of this name that is over the limit.
[[nodiscard]] std::string tooBigText(const std::string& name);

/// The error of an item that does not fit into the memory.
[[nodiscard]] std::string shortOfMemoryText();

/// The error of an item that was not on its way yet.
[[nodiscard]] std::string stoppedText();

} // namespace quillon
