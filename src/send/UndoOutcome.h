#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

/// What became of taking a send back.
struct UndoOutcome {
    /// An item that Telegram does not delete.
    struct Kept {
        std::string title;
        /// In Telegram's words.
        std::string reason;

        bool operator==(const Kept&) const = default;
    };

    /// How many messages are gone.
    std::size_t gone = 0;
    /// In the order sent.
    std::vector<Kept> kept{};
    /// Why it could not begin, or ended before all messages had their turn.
    std::optional<std::string> problem{};

    [[nodiscard]] bool ok() const { return kept.empty() && !problem; }
};

/// "Took back" with the number of messages.
[[nodiscard]] std::string tookBackText(std::size_t messages);

/// What the banner says of it.
[[nodiscard]] std::string undoText(const UndoOutcome& outcome);

} // namespace quillon
