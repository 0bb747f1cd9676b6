#pragma once

#include "state/Sent.h"
#include "ui/accessibility/View.h"

#include <array>
#include <string>
#include <vector>

namespace quillon {

class HistoryRow;
class IconLabel;

/// The last few sends, and what became of them.
class RecentSends : public View {
    Q_OBJECT

public:
    /// How many of them are listed, the newest.
    static constexpr std::size_t limit = 5;

    explicit RecentSends(QWidget* parent = nullptr);

    /// `history` has the newest first; `locale` is that of the ages.
    void setHistory(const std::vector<Sent>& history, Date now, const std::string& locale);

    [[nodiscard]] QAccessible::Role accessibleRole() const override { return QAccessible::List; }

private:
    IconLabel* none_;
    std::array<HistoryRow*, limit> rows_{};
};

} // namespace quillon
