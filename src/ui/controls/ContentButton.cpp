#include "ui/controls/Buttons.h"

#include "ui/accessibility/Accessibility.h"

#include <QChildEvent>
#include <QPainter>

namespace quillon {

namespace {

class ButtonDescription : public ContainerDescription {
public:
    explicit ButtonDescription(ContentButton* button)
        : ContainerDescription{button},
          button_{button} {}

    [[nodiscard]] QAccessible::Role role() const override {
        return button_->selected() ? QAccessible::RadioButton : QAccessible::Button;
    }

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = state.checkable = button_->selected().has_value();
        state.selected = state.checked = button_->selected().value_or(false);
        state.expandable = button_->expanded().has_value();
        state.expanded = button_->expanded().value_or(false);
        state.collapsed = !button_->expanded().value_or(true);
        state.busy = button_->busy();
        state.pressed = button_->isDown();
        return state;
    }

    [[nodiscard]] QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (button_->isEnabled()) names.prepend(pressAction());
        return names;
    }

    void doAction(const QString& name) override {
        if (name == pressAction()) {
            button_->click();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

protected:
    // The name and the description say all that the views on the button's face say.
    [[nodiscard]] QList<QAccessibleInterface*> parts() const override { return {}; }

private:
    ContentButton* button_;
};

} // namespace

ContentButton::ContentButton() {
    describeAs<ContentButton, ButtonDescription>();
    QSizePolicy policy{QSizePolicy::Preferred, QSizePolicy::Preferred};
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setAttribute(Qt::WA_Hover);
}

void ContentButton::setSelected(bool selected) {
    if (selected_ == selected) return;
    selected_ = selected;
    update();
    QAccessible::State changed;
    changed.selected = changed.checked = true;
    announce(*this, changed);
}

void ContentButton::setExpanded(std::optional<bool> expanded) {
    if (expanded_ == expanded) return;
    expanded_ = expanded;
    QAccessible::State changed;
    changed.expanded = true;
    announce(*this, changed);
}

void ContentButton::setBusy(bool busy) {
    if (busy_ == busy) return;
    busy_ = busy;
    setBrightWhileDisabled(*this, busy);
    // Qt would move the focus from a disabled control to the next one. Here it comes back when the
    // action has ended.
    const bool focused = hasFocus();
    if (busy && focused) clearFocus();
    setEnabled(!busy);
    if (!busy && hadFocus_ && !window()->focusWidget()) setFocus(Qt::ActiveWindowFocusReason);
    hadFocus_ = focused;
    QAccessible::State changed;
    changed.busy = true;
    announce(*this, changed);
}

void ContentButton::setCornerRadius(double radius) {
    radius_ = radius;
    update();
}

void ContentButton::paintGround(QPainter& painter, const Theme& theme) {
    if (!isEnabled() || (!underMouse() && !isDown())) return;
    paintBox(painter, rect(), radius_, isDown() ? theme.hoverFill() : theme.quaternaryFill());
}

void ContentButton::paintEvent(QPaintEvent* /*event*/) {
    const Theme theme = this->theme();
    QPainter painter{this};
    paintGround(painter, theme);
    if (showsFocus()) theme.paintFocusRing(painter, rect(), radius_, focusTint());
}

void ContentButton::childEvent(QChildEvent* event) {
    if (event->added() && event->child()->isWidgetType())
        static_cast<QWidget*>(event->child())->setAttribute(Qt::WA_TransparentForMouseEvents);
    PressedByReturn::childEvent(event);
}

} // namespace quillon
