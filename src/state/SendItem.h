#pragma once

#include "state/SendInfo.h"
#include "telegram/Telegram.h"

#include <QByteArray>

#include <filesystem>
#include <optional>
#include <stop_token>
#include <string>
#include <variant>
#include <vector>

namespace quillon {

/// A bitmap as PNG, and the text that was copied with it, unchanged.
struct ClipImage {
    QByteArray png;
    std::optional<std::string> text;

    bool operator==(const ClipImage&) const = default;
};

/// Text exactly as copied, with at least one character that is not white space or a line break.
struct ClipText {
    std::string text;

    bool operator==(const ClipText&) const = default;
};

/// What a file holds that lies in memory alone.
struct NamedBytes {
    /// The file's name, which may hold any bytes; of a path, the last component counts.
    std::filesystem::path name;
    QByteArray bytes;

    bool operator==(const NamedBytes&) const = default;
};

/// One thing that is sent, and has an entry of its own in the history. A path is absolute, and what
/// lies there may be anything or nothing.
using SendItem = std::variant<std::filesystem::path, ClipImage, ClipText, NamedBytes>;

/// What one send is to be like, whatever its items are.
struct SendWishes {
    Trigger via;
    /// The topic for all items; without it, each goes to the topic of its kind.
    std::optional<TopicKind> topic{};
    /// Told on the main thread how far each upload has come; may be empty.
    SendProgress progress{};
    /// After a request to stop, no further item is sent.
    std::stop_token stop{};
};

} // namespace quillon
