#pragma once

#include "ui/controls/Card.h"
#include "ui/theme/Animation.h"

#include <string>

namespace quillon {

class Badge;
class Collapsible;
class ContentButton;
class IconLabel;
class SymbolView;

/// One step of the guide: a header with a badge, which opens and closes the row, and below it,
/// while the row is open, the step's instructions and controls.
class StepRow : public CardGround {
    Q_OBJECT

public:
    /// What the row shows.
    struct State {
        bool done = false;
        bool current = false;
        bool open = false;
        /// The result of the step, shown while it is done and closed.
        QString summary;
    };

    StepRow(int n, const QString& title, const std::string& symbol, QWidget* content);

    void setState(const State& state, bool animated);

    [[nodiscard]] ContentButton* header() const { return header_; }

    /// Whether the row is opening or closing, and the number of pixels that it will have grown by
    /// after that.
    [[nodiscard]] bool moving() const;
    [[nodiscard]] int growthAhead() const;

Q_SIGNALS:
    /// The user clicked on the header.
    void toggle();

protected:
    void themeChanged() override;

private:
    [[nodiscard]] ContentButton* buildHeader(const QString& title, const std::string& symbol);
    void indentContent();
    void showHeader(const State& state);

    int n_;
    Badge* badge_;
    IconLabel* summary_;
    SymbolView* chevron_;
    ContentButton* header_;
    QWidget* inset_;
    Collapsible* body_;
    Animation opacity_;
};

} // namespace quillon
