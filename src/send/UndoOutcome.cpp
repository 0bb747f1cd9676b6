#include "send/UndoOutcome.h"

#include "base/Translate.h"

namespace quillon {

std::string tookBackText(std::size_t messages) {
    if (messages == 1) return translate("Undo", "Took back the message");
    const int count = static_cast<int>(messages);
    return translate("Undo", "Took back %n messages", nullptr, count);
}

std::string undoText(const UndoOutcome& outcome) {
    if (outcome.ok()) return tookBackText(outcome.gone);
    const std::string why = outcome.problem.value_or(
        outcome.kept.empty() ? std::string{} : outcome.kept.front().reason);
    if (outcome.gone == 0) return why;
    return filled(translate("Undo", "Took back only %1: %2", "number of messages, reason"),
                  {std::to_string(outcome.gone), why});
}

} // namespace quillon
