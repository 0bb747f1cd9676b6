#include "ui/panel/HistoryRow.h"

#include "artwork/Brand.h"
#include "ui/panel/Age.h"
#include "ui/panel/Literal.h"
#include "ui/views/IconLabel.h"
#include "ui/views/SymbolView.h"

#include <QHBoxLayout>

namespace quillon {

namespace {

constexpr double symbolSize = 13;
constexpr double symbolFrame = 18;
constexpr double markSize = 11;
constexpr int lineSpacing = 1;

LabelLook detailLook(bool failed) {
    return {.style = Text::caption, .ink = failed ? Ink::warning : Ink::secondary};
}

} // namespace

HistoryRow::HistoryRow(QWidget* parent)
    : View{parent},
      symbol_{new SymbolView{{}, {.size = symbolSize, .ink = Ink::secondary}}},
      title_{new IconLabel{{}, {}, {.style = Text::callout, .overflow = Overflow::elideMiddle}}},
      detail_{new IconLabel{{}, {}, detailLook(false)}},
      mark_{new SymbolView{{}}} {
    symbol_->setFrameWidth(symbolFrame);

    auto* const column = new QVBoxLayout;
    column->setSpacing(lineSpacing);
    column->addWidget(title_);
    column->addWidget(detail_);

    auto* const row = new QHBoxLayout{this};
    row->setContentsMargins({});
    row->setSpacing(0);
    row->addWidget(symbol_, 0, Qt::AlignVCenter);
    row->addSpacing(Space::small);
    row->addLayout(column, 1);
    row->addSpacing(Space::tight);
    row->addWidget(mark_, 0, Qt::AlignVCenter);
}

void HistoryRow::setEntry(const Sent& entry, Date now, const std::string& locale) {
    const bool failed = entry.error.has_value();
    symbol_->setSymbol(entry.symbol);
    title_->setText(literal(QString::fromStdString(entry.title)));
    detail_->setLook(detailLook(failed));
    detail_->setText(
        literal(failed ? QString::fromStdString(*entry.error)
                       : QStringLiteral("%1 · %2").arg(QString::fromStdString(entry.topic),
                                                       age(entry.date, now, locale))));
    mark_->setSymbol(failed ? "exclamationmark.triangle.fill" : "checkmark");
    mark_->setLook({.size = markSize,
                    .weight = SymbolWeight::bold,
                    .ink = failed ? Tint{Ink::warning} : Tint{Brand::coralDeep}});
    mark_->setAccessibleName(failed ? tr("Not sent") : tr("Sent"));
}

} // namespace quillon
