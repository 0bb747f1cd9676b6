#include "ui/settings/PanelOffer.h"

#include "ui/controls/Buttons.h"
#include "ui/controls/Card.h"
#include "ui/text/IconLabel.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace quillon {

PanelOffer::PanelOffer(QWidget* parent) : QWidget{parent} {
    auto* const text = new IconLabel{tr("This desktop shows no icon for Quillon."),
                                     "info.circle",
                                     {.style = Text::callout, .ink = Ink::secondary}};
    auto* const open = new TextButton{tr("Open pane&l"), {}, {.style = Text::callout}};
    connect(open, &TextButton::clicked, this, &PanelOffer::openPanel);

    auto* const row = new QHBoxLayout;
    row->setContentsMargins(Space::large, Space::small, Space::large, Space::small);
    row->setSpacing(Space::small);
    row->addWidget(text, 1, Qt::AlignVCenter);
    row->addWidget(open);
    auto* const column = new QVBoxLayout{this};
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(new Divider);
    column->addLayout(row);
}

} // namespace quillon
