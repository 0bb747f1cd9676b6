#pragma once

#include <QAccessible>
#include <QAccessibleWidget>

class QWidget;

namespace quillon {

/// Makes Qt describe the widgets of a class, and of classes derived from it, to assistive
/// technology by objects of type Description, which are made from a pointer to the widget. The
/// class calls this in its constructor; only the first call counts.
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

/// Describes a widget without a role of its own: a window, or a widget that groups others. Leaves
/// decoration out.
class ContainerDescription : public QAccessibleWidget {
public:
    explicit ContainerDescription(QWidget* widget) : QAccessibleWidget{widget} {}

    [[nodiscard]] QAccessible::Role role() const override;
    /// What the widget has been given, shortened() if it comes from outside and is very long.
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] int childCount() const override { return static_cast<int>(parts().size()); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return parts().value(index);
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        return static_cast<int>(parts().indexOf(child));
    }

protected:
    /// Whether a widget is mere decoration, of which assistive technology is not told.
    [[nodiscard]] static bool decorates(const QAccessibleInterface* part);
    /// The children that assistive technology is told of.
    [[nodiscard]] virtual QList<QAccessibleInterface*> parts() const;
};

/// Tells assistive technology that the states set in `changed` have changed.
void announce(QObject& object, QAccessible::State changed);

/// Gives a control a description, unless it has it already: QWidget's own setter would announce it
/// to assistive technology again.
void setDescription(QWidget& control, const QString& description);

/// Makes screen readers read the new text of an alert or a notification that already shows.
void readOut(QWidget& widget);

} // namespace quillon
