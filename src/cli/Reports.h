#pragma once

#include "platform/linux/DesktopWays.h"
#include "state/Sent.h"

#include <string>
#include <vector>

namespace quillon {

class Store;

/// Ready to send, as far as is known of the keyring.
[[nodiscard]] bool canSend(const Store& store);

/// "sent" or "failed", topic and title, with tabs between; those within are shown as spaces.
[[nodiscard]] std::string sendLine(const Sent& entry);

/// What is set up, for people, and as one JSON object: "ready", "tokenSaved", "botName", "chatId",
/// "chatTitle", "topics", "shortcut"; what is unknown is left out.
/// "ready" is false while the keyring keeps the token from us. The object also has "desktop": which
/// way "session", "clipboard" and "banner" go there and, with `registered`, in which the shortcut
/// is, the "way", "state", "trigger" and "command" of "shortcut".
[[nodiscard]] std::string statusText(const Store& store);
[[nodiscard]] std::string statusJson(const Store& store, const DesktopWays& ways, bool registered);

/// The history, newest first: a line each with local time, and as a JSON array of objects with
/// "id", "date" (ISO 8601, UTC), "topic", "title" and, for what failed, "error".
[[nodiscard]] std::string historyText(const std::vector<Sent>& history);
[[nodiscard]] std::string historyJson(const std::vector<Sent>& history);

} // namespace quillon
