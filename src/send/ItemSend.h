#pragma once

#include "send/ClipContent.h"
#include "state/Recipient.h"
#include "state/SendInfo.h"
#include "state/Sent.h"

#include <QCoroTask>

#include <QUuid>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <stop_token>
#include <string>

namespace quillon {

struct Platform;

/// What sending one item came to: its entry in the history, and its record for the usage events.
struct SentItem {
    Sent entry;
    SendInfo info;
};

/// What the items of one send have in common, but for the id of the entry.
struct Sending {
    /// Outlives the send.
    Platform& platform;
    Recipient recipient;
    /// Told how far each upload has come; may be empty.
    SendProgress progress;
    /// Once a stop is requested, nothing more is sent than what is on its way.
    std::stop_token stop{};
    /// The id that the item's entry in the history gets.
    QUuid entry{};
    /// Told the entry and the message id of each message that has arrived; may be empty.
    std::function<void(const QUuid& entry, std::int64_t message)> arrived{};
};

// Each sends one item to its topic. None throws: a failure is in the entry's error.

/// As one message or, where it is longer than a message may be, several.
[[nodiscard]] QCoro::Task<SentItem> sendText(ClipText text, Sending sending);
/// As a photo, or as a document where it is larger than photos may be.
[[nodiscard]] QCoro::Task<SentItem> sendImage(ClipImage image, Sending sending);
/// As a document. A folder, and a file that is too large or cannot be read, are not sent.
[[nodiscard]] QCoro::Task<SentItem> sendFile(std::filesystem::path path, Sending sending);

// Each item as it stands in the history when it has not arrived because the send was ended.
[[nodiscard]] SentItem unsent(const ClipText& text, const Sending& sending,
                              const std::string& error);
[[nodiscard]] SentItem unsent(const ClipImage& image, const Sending& sending,
                              const std::string& error);
[[nodiscard]] SentItem unsent(const std::filesystem::path& file, const Sending& sending,
                              const std::string& error);

/// The error of an item that does not fit into the memory.
[[nodiscard]] std::string shortOfMemoryText();

/// The error of an item that was not on its way yet.
[[nodiscard]] std::string stoppedText();

} // namespace quillon
