#pragma once

#include "state/Sent.h"
#include "ui/accessibility/View.h"

#include <optional>
#include <string>

namespace quillon {

class IconLabel;
class SymbolView;

/// One send: what was sent, to which topic and when, or why it failed.
class HistoryRow : public View {
    Q_OBJECT

public:
    HistoryRow();

    void setEntry(const Sent& entry, Date now, const std::string& locale);

    [[nodiscard]] QString accessibleText() const override;

private:
    void setFailed(bool failed);

    SymbolView* symbol_;
    IconLabel* title_;
    IconLabel* detail_;
    SymbolView* mark_;
    std::optional<bool> failed_; // what the row shows now
};

} // namespace quillon
