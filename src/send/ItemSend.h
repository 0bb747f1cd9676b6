#pragma once

#include "send/ClipContent.h"
#include "state/Recipient.h"
#include "state/SendInfo.h"
#include "state/Sent.h"

#include <QCoroTask>

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
};

// Each sends one item to its topic. None throws: a failure is in the entry's error.

/// As one message or, where it is longer than a message may be, several.
[[nodiscard]] QCoro::Task<SentItem> sendText(ClipText text, Sending sending);
/// As a photo, or as a document where it is larger than photos may be.
[[nodiscard]] QCoro::Task<SentItem> sendImage(ClipImage image, Sending sending);
/// As a document. A folder, and a file that is too large or cannot be read, are not sent.
[[nodiscard]] QCoro::Task<SentItem> sendFile(std::filesystem::path path, Sending sending);

} // namespace quillon
