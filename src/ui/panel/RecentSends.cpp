#include "ui/panel/RecentSends.h"

#include "ui/panel/HistoryRow.h"
#include "ui/text/IconLabel.h"

#include <QVBoxLayout>

namespace quillon {

RecentSends::RecentSends()
    : none_{new IconLabel{
          tr("Nothing sent yet."), "tray", {.style = Text::callout, .ink = Ink::tertiary}}} {
    setAccessibleRole(QAccessible::List);
    setAccessibleName(tr("Recent"));
    none_->setContentsMargins(0, Space::tight, 0, Space::tight);

    auto* const column = columnIn(this, Space::small);
    column->addWidget(new IconLabel{tr("Recent"),
                                    "clock.arrow.circlepath",
                                    {.style = Text::caption.semibold(), .ink = Ink::secondary}});
    column->addWidget(none_);
    for (HistoryRow*& row : rows_) {
        row = new HistoryRow;
        column->addWidget(row);
    }
    connect(rows_.front(), &HistoryRow::undo, this, &RecentSends::undo);
}

void RecentSends::offerUndo(bool offered, std::size_t messages) {
    rows_.front()->offerUndo(offered, messages);
}

void RecentSends::setHistory(const std::vector<Sent>& history, Date now,
                             const std::string& locale) {
    none_->setVisible(history.empty());
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const bool used = i < history.size();
        if (used) rows_[i]->setEntry(history[i], now, locale);
        rows_[i]->setVisible(used);
    }
}

} // namespace quillon
