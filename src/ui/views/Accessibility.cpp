#include "ui/views/Accessibility.h"

#include "ui/views/Buttons.h"
#include "ui/views/MessageWindow.h"
#include "ui/views/View.h"

#include <QAccessibleWidget>
#include <QDialog>

#include <utility>

namespace quillon {
namespace {

/// Whether a widget only decorates: assistive technology does not hear of it.
bool decorates(const QAccessibleInterface* part) {
    const auto* view = part ? qobject_cast<const View*>(part->object()) : nullptr;
    return view && view->accessibleRole() == QAccessible::Graphic && part->childCount() == 0 &&
           part->text(QAccessible::Name).isEmpty();
}

/// A widget without a role of its own: a window, or what holds others together.
class ContainerDescription : public QAccessibleWidget {
public:
    explicit ContainerDescription(QWidget* widget) : QAccessibleWidget{widget} {}

    [[nodiscard]] QAccessible::Role role() const override {
        if (qobject_cast<QDialog*>(widget())) return QAccessible::Dialog;
        if (widget()->isWindow()) return QAccessible::Window;
        return text(QAccessible::Name).isEmpty() ? QAccessible::Client : QAccessible::Grouping;
    }

    [[nodiscard]] int childCount() const override { return static_cast<int>(parts().size()); }

    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return parts().value(index);
    }

    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        return static_cast<int>(parts().indexOf(child));
    }

protected:
    /// What it consists of for assistive technology.
    [[nodiscard]] virtual QList<QAccessibleInterface*> parts() const {
        QList<QAccessibleInterface*> parts;
        for (int i = 0; i < QAccessibleWidget::childCount(); ++i) {
            QAccessibleInterface* part = QAccessibleWidget::child(i);
            if (part && !decorates(part)) parts.append(part);
        }
        return parts;
    }
};

/// What it says is read out when it comes.
class MessageDescription : public ContainerDescription {
public:
    explicit MessageDescription(MessageWindow* window) : ContainerDescription{window} {}

    [[nodiscard]] QAccessible::Role role() const override { return MessageWindow::accessibleRole; }
};

class ViewDescription : public ContainerDescription {
public:
    explicit ViewDescription(View* view) : ContainerDescription{view}, view_{view} {}

    [[nodiscard]] QAccessible::Role role() const override {
        const QAccessible::Role role = view_->accessibleRole();
        const bool holds = role == QAccessible::Graphic && childCount() > 0;
        return holds ? ContainerDescription::role() : role;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        const QString given = QAccessibleWidget::text(kind);
        return kind == QAccessible::Name && given.isEmpty() ? view_->accessibleText() : given;
    }

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.busy = view_->accessibleBusy();
        if (decorates(this)) state.invisible = true;
        return state;
    }

    using Relations = QList<std::pair<QAccessibleInterface*, QAccessible::Relation>>;

    [[nodiscard]] Relations relations(QAccessible::Relation match) const override {
        Relations relations = QAccessibleWidget::relations(match);
        if (view_->accessibleLabel() && (match & QAccessible::Label)) {
            relations.append({QAccessible::queryAccessibleInterface(view_->accessibleLabel()),
                              QAccessible::Label});
        }
        return relations;
    }

protected:
    [[nodiscard]] QList<QAccessibleInterface*> parts() const override {
        return view_->accessibleWhole() ? QList<QAccessibleInterface*>{}
                                        : ContainerDescription::parts();
    }

private:
    View* view_;
};

class ButtonDescription : public QAccessibleWidget {
public:
    explicit ButtonDescription(ContentButton* button)
        : QAccessibleWidget{button},
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

    // Its name and description say what the views on its face say.
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override {
        return -1;
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
    if (className == QLatin1String{MessageWindow::staticMetaObject.className()})
        return new MessageDescription{static_cast<MessageWindow*>(object)};
    if (className == QLatin1String{QDialog::staticMetaObject.className()} ||
        className == QLatin1String{QWidget::staticMetaObject.className()})
        return new ContainerDescription{static_cast<QWidget*>(object)};
    return nullptr;
}

} // namespace

void announce(QObject& object, QAccessible::State changed) {
    QAccessibleStateChangeEvent event{&object, changed};
    QAccessible::updateAccessibility(&event);
}

void setDescription(QWidget& control, const QString& description) {
    if (control.accessibleDescription() != description)
        control.setAccessibleDescription(description);
}

void readOut(QWidget& widget) {
    if (!widget.isVisible()) return;
    // Screen readers read out alerts and notifications that come to show; Qt passes on to the bus
    // that something shows, but not its own event for alerts.
    QAccessibleEvent shown{&widget, QAccessible::ObjectShow};
    QAccessible::updateAccessibility(&shown);
}

void describeViews() {
    static const bool installed = [] {
        QAccessible::installFactory(describe);
        return true;
    }();
    (void)installed;
}

} // namespace quillon
