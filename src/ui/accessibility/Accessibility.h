#pragma once

#include <QAccessible>
#include <QAccessibleWidget>

class QWidget;

namespace quillon {

/// Has Qt describe the widgets of a class, and of those derived from it, to assistive technology. A
/// description is made from a pointer to the widget. The class calls this in its constructor; only
/// the first call counts.
template <typename Widget, typename Description>
void describeAs() {
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(
            [](const QString& className, QObject* object) -> QAccessibleInterface* {
                if (className != QLatin1String{Widget::staticMetaObject.className()})
                    return nullptr;
                return new Description{static_cast<Widget*>(object)};
            });
        return true;
    }();
}

/// Describes a widget without a role of its own: a window, or what holds others together. Of these,
/// decoration is left out.
class ContainerDescription : public QAccessibleWidget {
public:
    explicit ContainerDescription(QWidget* widget) : QAccessibleWidget{widget} {}

    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] int childCount() const override { return static_cast<int>(parts().size()); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return parts().value(index);
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        return static_cast<int>(parts().indexOf(child));
    }

protected:
    /// Whether a widget only decorates: assistive technology does not hear of it.
    [[nodiscard]] static bool decorates(const QAccessibleInterface* part);
    /// What it consists of for assistive technology.
    [[nodiscard]] virtual QList<QAccessibleInterface*> parts() const;
};

/// Tells assistive technology that the states that are set in `changed` have changed.
void announce(QObject& object, QAccessible::State changed);

/// Gives a control a description, and tells of it when it is new; a widget's own setter tells each
/// time it is called.
void setDescription(QWidget& control, const QString& description);

/// Has screen readers read an alert or a notification that already shows, for its text is new.
void readOut(QWidget& widget);

} // namespace quillon
