#pragma once

#include "state/Sent.h"
#include "ui/accessibility/View.h"

#include <optional>
#include <string>

namespace quillon {

class IconLabel;
class SymbolView;
class TextButton;

/// One send: what was sent, to which topic and when, or why it failed.
class HistoryRow : public View {
    Q_OBJECT

public:
    HistoryRow();

    void setEntry(const Sent& entry, Date now, const std::string& locale);
    /// Offers to take the send back, which shows while the pointer or the focus is on the row; of
    /// several messages, it says how many.
    void offerUndo(bool offered, std::size_t messages);

    [[nodiscard]] QString accessibleText() const override;

Q_SIGNALS:
    /// The user wants the send taken back.
    void undo();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class State { sent, failed, takenBack };

    void setState(State state);
    /// Shows the button while it is of use, in room that is kept for it.
    void revealUndo();

    SymbolView* symbol_;
    IconLabel* title_;
    IconLabel* detail_;
    TextButton* undo_;
    SymbolView* mark_;
    std::optional<State> state_; // what the row shows now
};

} // namespace quillon
