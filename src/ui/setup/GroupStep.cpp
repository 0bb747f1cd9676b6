#include "ui/setup/GroupStep.h"

#include "ui/setup/Badge.h"
#include "ui/text/IconLabel.h"

#include <QHBoxLayout>

namespace quillon {

GroupStep::GroupStep(const std::string& symbol, const StyledText& text, QWidget* parent)
    : View{parent},
      label_{new IconLabel{text}} {
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Space::small + Space::hair);
    auto* badge = new Badge;
    badge->setSymbol(symbol);
    row->addWidget(badge, 0, Qt::AlignTop);
    row->addWidget(label_, 1, Qt::AlignVCenter);
}

QAccessible::Role GroupStep::accessibleRole() const {
    return QAccessible::ListItem;
}

QString GroupStep::accessibleText() const {
    return label_->accessibleText();
}

} // namespace quillon
