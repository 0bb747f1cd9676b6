#pragma once

#include "cli/Command.h"
#include "cli/Commands.h"
#include "state/SendItem.h"
#include "state/Sent.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// What the words behind "send" ask for. Without files and input it is the clipboard.
struct SendRequest {
    std::vector<std::filesystem::path> files{};
    /// What standard input holds.
    bool input = false;
    /// The file name that the input gets.
    std::optional<std::string> name{};
    /// The topic for everything, in place of that of its kind.
    std::optional<TopicKind> topic{};

    bool operator==(const SendRequest&) const = default;
};

/// None when the words cannot be understood.
[[nodiscard]] std::optional<SendRequest> parseSend(const Arguments& arguments);

/// The words that ask for the same, and do so in any process: files by their absolute path, and
/// standard input by name where somebody has put something there. Words that are not understood
/// stay as they are.
[[nodiscard]] Arguments preparedSend(Arguments arguments);

/// Carries `quillon send` out.
[[nodiscard]] QCoro::Task<int> runSend(CommandContext context, Arguments arguments);

/// Sends these items, or without any what is on the clipboard, and gives their entries in the
/// history, in the order sent. Throws a TelegramError when nothing was sent at all, not even in
/// vain: another send is under way, the setup is not finished, or there is nothing to send.
[[nodiscard]] QCoro::Task<std::vector<Sent>>
sendNow(CommandContext context, std::vector<SendItem> items, SendWishes wishes);

} // namespace quillon
