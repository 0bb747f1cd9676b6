#include "ui/controls/Card.h"

#include "ui/text/IconLabel.h"

#include <QPainter>
#include <QVBoxLayout>

namespace quillon {

void CardGround::paintEvent(QPaintEvent* /*event*/) {
    const Theme theme = this->theme();
    QPainter painter{this};
    paintBox(painter, rect(), Space::cardRadius, theme.cardFill(), theme.separator());
}

Card::Card(const QString& title, const std::string& symbol) : body_{new QVBoxLayout} {
    setAccessibleRole(QAccessible::Grouping);
    setAccessibleName(title);
    auto* column = columnIn(this, 10, Space::medium);
    column->addWidget(new IconLabel{
        title,
        symbol,
        {.style = Text::callout.semibold(), .ink = Ink::secondary, .symbolInk = Ink::accent}});
    column->addLayout(body_);
    body_->setSpacing(Space::small);
}

Divider::Divider() {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Divider::paintEvent(QPaintEvent* /*event*/) {
    QPainter{this}.fillRect(rect(), theme().separator());
}

} // namespace quillon
