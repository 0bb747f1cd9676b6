#include "ui/controls/Card.h"

#include "ui/text/IconLabel.h"

#include <QPainter>
#include <QVBoxLayout>

namespace quillon {

Card::Card(const QString& title, const std::string& symbol, QWidget* parent)
    : View{parent},
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
    return title_->text();
}

void Card::paintEvent(QPaintEvent* /*event*/) {
    const Theme theme = this->theme();
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen{theme.separator(), 1});
    painter.setBrush(theme.cardFill());
    painter.drawRoundedRect(QRectF{rect()}.adjusted(0.5, 0.5, -0.5, -0.5), Space::cardRadius,
                            Space::cardRadius);
}

Divider::Divider(QWidget* parent) : View{parent} {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Divider::paintEvent(QPaintEvent* /*event*/) {
    QPainter{this}.fillRect(rect(), theme().separator());
}

} // namespace quillon
