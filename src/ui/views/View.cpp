#include "ui/views/View.h"

#include "ui/views/Accessibility.h"

namespace quillon {

View::View(QWidget* parent) : Themed{parent} {
    describeViews();
}

void View::announceText() {
    QAccessibleEvent changed{this, QAccessible::NameChanged};
    QAccessible::updateAccessibility(&changed);
}

} // namespace quillon
