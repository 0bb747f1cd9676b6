#pragma once

#include "state/Sent.h"
#include "ui/accessibility/View.h"

#include <array>
#include <string>
#include <vector>

namespace quillon {

class HistoryRow;
class IconLabel;

/// The list of the last few sends.
class RecentSends : public View {
    Q_OBJECT

public:
    /// The number of sends that are listed.
    static constexpr std::size_t limit = 5;

    RecentSends();

    /// `history` has the newest send first. The ages are written in the language of `locale`.
    void setHistory(const std::vector<Sent>& history, Date now, const std::string& locale);
    /// Offers on the newest entry to take its send back, which is one of so many messages.
    void offerUndo(bool offered, std::size_t messages);

Q_SIGNALS:
    /// The user wants the last send taken back.
    void undo();

private:
    IconLabel* none_;
    std::array<HistoryRow*, limit> rows_{};
};

} // namespace quillon
