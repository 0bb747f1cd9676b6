#include "ui/panel/SetupCard.h"

#include "ui/controls/Buttons.h"
#include "ui/text/IconLabel.h"

#include <QPainter>
#include <QVBoxLayout>

namespace quillon {

namespace {

constexpr int padding = 12;
constexpr TextStyle titleStyle{14, QFont::Bold};

} // namespace

SetupCard::SetupCard()
    : invitation_{new IconLabel{{}, {}, {.style = Text::caption, .ink = Ink::secondary}}} {
    setAccessibleRole(QAccessible::Grouping);
    setAccessibleName(tr("Connect your phone"));
    auto* const start = new TextButton{
        tr("Start setup"), "arrow.right.circle.fill", {.kind = ButtonKind::prominent}};
    connect(start, &TextButton::clicked, this, &SetupCard::startSetup);

    auto* const column = columnIn(this, Space::small, padding);
    column->addWidget(new IconLabel{
        tr("Connect your phone"), "iphone.gen3.radiowaves.left.and.right", {.style = titleStyle}});
    column->addWidget(invitation_);
    column->addWidget(start, 0, Qt::AlignLeading);
}

void SetupCard::setShortcut(const QString& keys) {
    invitation_->setText(tr("A two-minute setup with your own Telegram bot. Then copy anything and "
                            "press %1.")
                             .arg(keys));
}

void SetupCard::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    paintBox(painter, rect(), Space::cardRadius, theme().quaternaryFill());
}

} // namespace quillon
