#pragma once

#include "state/Sent.h"
#include "ui/views/View.h"

#include <string>

namespace quillon {

class IconLabel;
class SymbolView;

/// One send: what it was, where it went and when, or why it failed.
class HistoryRow : public View {
    Q_OBJECT

public:
    explicit HistoryRow(QWidget* parent = nullptr);

    void setEntry(const Sent& entry, Date now, const std::string& locale);

private:
    SymbolView* symbol_;
    IconLabel* title_;
    IconLabel* detail_;
    SymbolView* mark_;
};

} // namespace quillon
