#include "ui/controls/MessageWindow.h"

#include "ui/accessibility/Accessibility.h"
#include "ui/controls/BrandViews.h"
#include "ui/text/IconLabel.h"
#include "ui/text/SymbolView.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

#include <utility>

namespace quillon {
namespace {

constexpr double iconSize = 56;
constexpr int columnGap = 16;
constexpr TextStyle titleStyle{15, QFont::Bold};
// Shares of the icon's side.
constexpr double badgeSize = 0.46;
constexpr double badgeEdge = 0.05;

/// Describes the window as an alert, which screen readers read out when it appears.
class MessageDescription : public ContainerDescription {
public:
    using ContainerDescription::ContainerDescription;

    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::AlertMessage; }
};

/// The application's icon, with the symbol of a warning in its corner if there is a warning.
class MessageIcon : public SquareView {
public:
    explicit MessageIcon(bool warning) : SquareView{iconSize}, warning_{warning} {}

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter{this};
        const double side = width();
        const double inset = warning_ ? side * badgeSize / 6 : 0;
        paintAppIcon(painter, QRectF{rect()}.adjusted(0, 0, -inset, -inset));
        if (!warning_) return;
        const double badge = side * badgeSize;
        const QRectF box{side - badge, side - badge, badge, badge};
        const double edge = side * badgeEdge;
        // A gap in the window's colour keeps the badge apart from the icon.
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen{palette().color(QPalette::Window), 2 * edge, Qt::SolidLine,
                            Qt::RoundCap, Qt::RoundJoin});
        painter.setBrush(painter.pen().color());
        const QRectF core = box.adjusted(edge, edge, -edge, -edge);
        painter.drawPolygon(QPolygonF{
            {QPointF{core.center().x(), core.top()}, core.bottomLeft(), core.bottomRight()}});
        paintSymbol(painter, box, "exclamationmark.triangle.fill", badge,
                    theme().color(Ink::warning));
    }

private:
    bool warning_;
};

} // namespace

MessageWindow::MessageWindow(const QString& title, const QString& text, bool warning)
    : title_{new IconLabel{{}, {}, {.style = titleStyle}}},
      text_{new IconLabel{{}, {}, {.ink = Ink::secondary}}},
      column_{new QVBoxLayout},
      buttons_{new QHBoxLayout} {
    describeAs<MessageWindow, MessageDescription>();
    setAttribute(Qt::WA_QuitOnClose, false);
    column_->setSpacing(Space::small);
    column_->addWidget(title_);
    column_->addWidget(text_);
    column_->addStretch(0); // keeps the texts together if there is room to spare
    auto* body = new QHBoxLayout;
    body->setSpacing(columnGap);
    body->addWidget(new MessageIcon{warning}, 0, Qt::AlignTop);
    body->addLayout(column_, 1);
    buttons_->setSpacing(Space::small);
    buttons_->addStretch(1);
    auto* whole = columnIn(this, Space::large, Space::large);
    whole->addLayout(body, 1);
    whole->addLayout(buttons_);
    whole->setSizeConstraint(QLayout::SetFixedSize);
    setWidths();
    setTexts(title, text);
}

void MessageWindow::setWidths() {
    const int width = Theme::wholeLength(textWidth);
    title_->setFixedWidth(width);
    text_->setMinimumWidth(width);
}

void MessageWindow::themeChanged() {
    Themed::themeChanged();
    setWidths();
}

void MessageWindow::setTexts(const QString& title, const QString& text) {
    title_->setText(title);
    text_->setText(text);
    text_->setVisible(!text.isEmpty());
    setAccessibleName(title);
    setAccessibleDescription(text);
}

void MessageWindow::addContent(QWidget* content, bool growing) {
    column_->insertWidget(column_->count() - 1, content, growing ? 1 : 0);
    if (growing) layout()->setSizeConstraint(QLayout::SetDefaultConstraint);
}

TextButton* MessageWindow::addButton(const QString& text, Place place,
                                     std::function<void()> pressed) {
    const bool primary = place == Place::primary;
    auto* button =
        new TextButton{text, {}, {.kind = primary ? ButtonKind::prominent : ButtonKind::bordered}};
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, pressed = std::move(pressed)] {
        leave();
        if (pressed) pressed();
    });
    switch (place) {
    case Place::primary:
        buttons_->addWidget(button);
        button->setDefault(true);
        break;
    case Place::secondary:
        buttons_->insertWidget(apart_ + 1, button);
        break;
    case Place::apart:
        buttons_->insertWidget(apart_++, button);
        break;
    }
    return button;
}

void MessageWindow::showEvent(QShowEvent* event) {
    Themed::showEvent(event);
    // Return presses the primary button. Without a primary button it must press nothing that the
    // user has not gone to, because it may have been meant for the window before this one.
    if (!focusWidget()) setFocus();
    QAccessibleEvent announcement{this, QAccessible::Alert};
    QAccessible::updateAccessibility(&announcement);
}

void MessageWindow::leave() {
    hide();
    // The buttons hold the answers that are waited for, and those must not wait for the deletion.
    for (TextButton* button : findChildren<TextButton*>())
        disconnect(button, nullptr, this, nullptr);
    deleteLater();
}

void MessageWindow::reject() {
    if (escape_) escape_->click();
}

} // namespace quillon
