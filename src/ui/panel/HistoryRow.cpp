#include "ui/panel/HistoryRow.h"

#include "artwork/Brand.h"
#include "ui/panel/Age.h"
#include "ui/text/IconLabel.h"
#include "ui/text/SymbolView.h"

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

HistoryRow::HistoryRow()
    : symbol_{new SymbolView{
          {}, {.size = symbolSize, .ink = Ink::secondary, .frameWidth = symbolFrame}}},
      title_{new IconLabel{{}, {}, {.style = Text::callout, .overflow = Overflow::elideMiddle}}},
      detail_{new IconLabel{{}, {}, detailLook(false)}},
      mark_{new SymbolView{{}}} {
    setAccessibleRole(QAccessible::ListItem);

    auto* const column = new QVBoxLayout;
    column->setSpacing(lineSpacing);
    column->addWidget(title_);
    column->addWidget(detail_);

    auto* const row = rowIn(this, 0);
    row->addWidget(symbol_, 0, Qt::AlignVCenter);
    row->addSpacing(Space::small);
    row->addLayout(column, 1);
    row->addSpacing(Space::tight);
    row->addWidget(mark_, 0, Qt::AlignVCenter);
}

void HistoryRow::setEntry(const Sent& entry, Date now, const std::string& locale) {
    const QString before = accessibleText();
    symbol_->setSymbol(entry.symbol);
    title_->setText(QString::fromStdString(entry.title));
    if (entry.error) {
        detail_->setText(QString::fromStdString(*entry.error));
    } else {
        const QString topic = QString::fromStdString(entry.topic);
        detail_->setText(tr("%1 · %2", "topic and age").arg(topic, age(entry.date, now, locale)));
    }
    setFailed(entry.error.has_value());
    if (accessibleText() != before) announceText();
}

void HistoryRow::setFailed(bool failed) {
    if (failed == failed_) return;
    failed_ = failed;
    detail_->setLook(detailLook(failed));
    mark_->setSymbol(failed ? "exclamationmark.triangle.fill" : "checkmark");
    mark_->setLook({.size = markSize,
                    .weight = SymbolWeight::bold,
                    .ink = failed ? Tint{Ink::warning} : Tint{Brand::coralDeep}});
    mark_->setAccessibleName(failed ? tr("Not sent") : tr("Sent"));
}

QString HistoryRow::accessibleText() const {
    return QStringList{title_->accessibleText(), detail_->accessibleText(), mark_->accessibleName()}
        .join(QStringLiteral(", "));
}

} // namespace quillon
