#include "ui/panel/PanelHeader.h"

#include "ui/controls/BrandViews.h"
#include "ui/text/IconLabel.h"
#include "ui/text/SymbolView.h"

#include <QHBoxLayout>

namespace quillon {

namespace {

constexpr double iconSize = 32;
constexpr double wordmarkSize = 15;
constexpr double telegramSize = 11;
constexpr double warningSize = 10;

} // namespace

PanelHeader::PanelHeader()
    : connected_{new TelegramIcon{telegramSize}},
      notSetUp_{new SymbolView{"exclamationmark.circle.fill",
                               {.size = warningSize, .ink = Ink::warning}}},
      status_{new IconLabel{
          {},
          {},
          {.style = Text::caption, .ink = Ink::secondary, .overflow = Overflow::elideEnd}}} {
    setAccessibleRole(QAccessible::Grouping);
    auto* const line = new QHBoxLayout;
    line->setSpacing(Space::tight);
    line->addWidget(connected_);
    line->addWidget(notSetUp_);
    line->addWidget(status_, 1);

    auto* const column = new QVBoxLayout;
    column->setSpacing(Space::hair);
    column->addWidget(new Wordmark{wordmarkSize}, 0, Qt::AlignLeading);
    column->addLayout(line);

    auto* const row = rowIn(this, Space::small + Space::hair);
    row->addWidget(new AppIconView{iconSize}, 0, Qt::AlignTop);
    row->addLayout(column, 1);
}

void PanelHeader::setStatus(bool ready, const std::optional<std::string>& group) {
    connected_->setVisible(ready);
    notSetUp_->setVisible(!ready);
    const QString name = group ? QString::fromStdString(*group) : tr("your group");
    status_->setText(ready ? tr("Connected · %1").arg(name) : tr("Not set up yet"));
}

} // namespace quillon
