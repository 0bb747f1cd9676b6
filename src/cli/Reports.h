#pragma once

#include "state/Sent.h"

#include <string>
#include <vector>

namespace quillon {

class Store;

/// "sent" or "failed", topic and title, with tabs between; those within are shown as spaces.
[[nodiscard]] std::string sendLine(const Sent& entry);

/// What is set up, for people, and as one JSON object: "ready", "tokenSaved", "botName", "chatId",
/// "chatTitle", "topics", "shortcut"; what is unknown is left out.
/// "ready" is false while the keyring keeps the token from us.
[[nodiscard]] std::string statusText(const Store& store);
[[nodiscard]] std::string statusJson(const Store& store);

/// The history, newest first: a line each with local time, and as a JSON array of objects with
/// "id", "date" (ISO 8601, UTC), "topic", "title" and, for what failed, "error".
[[nodiscard]] std::string historyText(const std::vector<Sent>& history);
[[nodiscard]] std::string historyJson(const std::vector<Sent>& history);

} // namespace quillon
