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

Card::Card(const QString& title, const std::string& symbol, QWidget* parent)
    : CardGround{parent},
      title_{new IconLabel{
          title,
          symbol,
          {.style = Text::callout.semibold(), .ink = Ink::secondary, .symbolInk = Ink::accent}}},
      body_{new QVBoxLayout} {
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(Space::medium, Space::medium, Space::medium, Space::medium);
    column->setSpacing(10);
    column->addWidget(title_);
    column->addLayout(body_);
    body_->setSpacing(Space::small);
}

QAccessible::Role Card::accessibleRole() const {
    return QAccessible::Grouping;
}

QString Card::accessibleText() const {
    return title_->text().plain();
}

Divider::Divider(QWidget* parent) : View{parent} {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Divider::paintEvent(QPaintEvent* /*event*/) {
    QPainter{this}.fillRect(rect(), theme().separator());
}

} // namespace quillon
