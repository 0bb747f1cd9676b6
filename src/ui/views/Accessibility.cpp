#include "ui/views/Accessibility.h"

#include "ui/views/Buttons.h"
#include "ui/views/MessageWindow.h"
#include "ui/views/View.h"

#include <QAccessibleWidget>

namespace quillon {
namespace {

class ViewDescription : public QAccessibleWidget {
public:
    explicit ViewDescription(View* view) : QAccessibleWidget{view}, view_{view} {}

    [[nodiscard]] QAccessible::Role role() const override { return view_->accessibleRole(); }

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        const QString given = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && given.isEmpty() ? view_->accessibleText() : given;
    }

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.busy = view_->accessibleBusy();
        if (role() == QAccessible::Graphic && text(QAccessible::Name).isEmpty())
            state.invisible = true;
        return state;
    }

private:
    View* view_;
};

class ButtonDescription : public QAccessibleWidget {
public:
    explicit ButtonDescription(ContentButton* button)
        : QAccessibleWidget{button, QAccessible::Button},
          button_{button} {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectable = button_->selected().has_value();
        state.selected = button_->selected().value_or(false);
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

private:
    ContentButton* button_;
};

QAccessibleInterface* describe(const QString& className, QObject* object) {
    if (className == QLatin1String{View::staticMetaObject.className()})
        return new ViewDescription{static_cast<View*>(object)};
    if (className == QLatin1String{ContentButton::staticMetaObject.className()})
        return new ButtonDescription{static_cast<ContentButton*>(object)};
    if (className == QLatin1String{MessageWindow::staticMetaObject.className()}) {
        auto* window = static_cast<MessageWindow*>(object);
        return new QAccessibleWidget{window, MessageWindow::accessibleRole};
    }
    return nullptr;
}

} // namespace

void announce(QObject& object, QAccessible::State changed) {
    QAccessibleStateChangeEvent event{&object, changed};
    QAccessible::updateAccessibility(&event);
}

void describeViews() {
    static const bool installed = [] {
        QAccessible::installFactory(describe);
        return true;
    }();
    (void)installed;
}

} // namespace quillon
