#include "ui/setup/GroupStep.h"

#include "ui/setup/Badge.h"
#include "ui/views/IconLabel.h"

#include <QHBoxLayout>

namespace quillon {

GroupStep::GroupStep(const std::string& symbol, const QString& text, QWidget* parent)
    : View{parent} {
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Space::small + Space::hair);
    auto* badge = new Badge;
    badge->setSymbol(symbol);
    row->addWidget(badge, 0, Qt::AlignTop);
    auto* label = new IconLabel{text};
    row->addWidget(label, 1, Qt::AlignVCenter);
}

} // namespace quillon
