#pragma once

#include "ui/controls/Card.h"
#include "ui/theme/Transition.h"

#include <string>

namespace quillon {

class Badge;
class Collapsible;
class ContentButton;
class IconLabel;
class SymbolView;

/// One step of the guide: a badge, a header to click on, and its instructions and controls while it
/// is open.
class StepRow : public CardGround {
    Q_OBJECT

public:
    /// What a row shows.
    struct State {
        bool done = false;
        bool current = false;
        bool open = false;
        /// What was achieved; shown once done, while closed.
        QString summary;

        bool operator==(const State&) const = default;
    };

    StepRow(int n, const QString& title, const std::string& symbol, QWidget* content,
            QWidget* parent = nullptr);

    void setState(const State& state, bool animated);

    [[nodiscard]] ContentButton* header() const { return header_; }

    /// Its contents are on their way in or out; and by how many pixels it will then be higher.
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
    Transition opacity_;
};

} // namespace quillon
