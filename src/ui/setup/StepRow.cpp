#include "ui/setup/StepRow.h"

#include "ui/accessibility/Accessibility.h"
#include "ui/controls/Buttons.h"
#include "ui/setup/Badge.h"
#include "ui/setup/Collapsible.h"
#include "ui/text/IconLabel.h"
#include "ui/text/SymbolView.h"

#include <QHBoxLayout>

namespace quillon {

namespace {

// The header keeps a small distance from the row's edge, since it lights up under the pointer.
constexpr int edge = Space::tight;
constexpr int headerPadding = Space::small + Space::hair;
constexpr double chevronPoints = 11;

} // namespace

StepRow::StepRow(int n, const QString& title, const std::string& symbol, QWidget* content)
    : n_{n},
      badge_{new Badge},
      summary_{new IconLabel{
          {},
          {},
          {.style = Text::callout, .ink = Ink::secondary, .overflow = Overflow::elideMiddle}}},
      chevron_{new SymbolView{"chevron.down", {.size = chevronPoints, .ink = Ink::secondary}}},
      header_{buildHeader(title, symbol)},
      inset_{new QWidget},
      body_{new Collapsible{inset_}},
      opacity_{1, [this](double opacity) { setOpacity(*this, opacity); }} {
    auto* inside = new QVBoxLayout{inset_};
    inside->addWidget(content);
    indentContent();
    auto* column = columnIn(this, 0, edge);
    column->addWidget(header_);
    column->addWidget(body_);
}

ContentButton* StepRow::buildHeader(const QString& title, const std::string& symbol) {
    auto* header = new ContentButton;
    // The step's button may have the same title as the step.
    header->setAccessibleName(tr("Step %1: %2").arg(n_).arg(title));
    header->setCornerRadius(Space::cardRadius - edge);
    auto* row = new QHBoxLayout{header};
    row->setContentsMargins(headerPadding, Space::small, headerPadding, Space::small);
    row->setSpacing(headerPadding);
    row->addWidget(badge_);
    auto* label = new IconLabel{
        title,
        symbol,
        {.style = Text::headline, .symbolInk = Ink::secondary, .overflow = Overflow::elideEnd}};
    label->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred); // the summary gives way
    row->addWidget(label);
    row->addStretch(1);
    row->addWidget(summary_);
    row->addWidget(chevron_);
    connect(header, &ContentButton::clicked, this, &StepRow::toggle);
    return header;
}

void StepRow::indentContent() {
    inset_->layout()->setContentsMargins(headerPadding + Badge::side() + headerPadding, Space::hair,
                                         headerPadding, headerPadding);
}

void StepRow::setState(const State& state, bool animated) {
    if (state.done) {
        badge_->setDone();
    } else {
        badge_->setNumber(n_);
    }
    showHeader(state);
    body_->setOpen(state.open, animated);
    opacity_.go(state.done || state.current ? 1 : dimmedOpacity, animated);
}

void StepRow::showHeader(const State& state) {
    const bool summarized = state.done && !state.open;
    summary_->setText(state.summary);
    summary_->setVisible(summarized);
    chevron_->setVisible(state.done);
    chevron_->setSymbol(state.open ? "chevron.up" : "chevron.down");
    setDescription(*header_,
                   state.done ? tr("Done") + QStringLiteral(". ") + state.summary : QString{});
    // The current step stays open, so that its header opens and closes nothing.
    header_->setExpanded(state.current ? std::nullopt : std::optional{state.open});
}

bool StepRow::moving() const {
    return body_->moving();
}

int StepRow::growthAhead() const {
    return body_->growthAhead();
}

void StepRow::themeChanged() {
    CardGround::themeChanged();
    indentContent();
}

} // namespace quillon
