#include "ui/accessibility/Accessibility.h"

#include "base/ShownText.h"
#include "ui/accessibility/View.h"

#include <QDialog>

namespace quillon {

QAccessible::Role ContainerDescription::role() const {
    if (qobject_cast<QDialog*>(widget())) return QAccessible::Dialog;
    if (widget()->isWindow()) return QAccessible::Window;
    return text(QAccessible::Name).isEmpty() ? QAccessible::Client : QAccessible::Grouping;
}

QString ContainerDescription::text(QAccessible::Text kind) const {
    return shortened(QAccessibleWidget::text(kind));
}

bool ContainerDescription::decorates(const QAccessibleInterface* part) {
    const auto* view = qobject_cast<const View*>(part->object());
    return view && view->accessibleRole() == QAccessible::Graphic && part->childCount() == 0 &&
           part->text(QAccessible::Name).isEmpty();
}

QList<QAccessibleInterface*> ContainerDescription::parts() const {
    QList<QAccessibleInterface*> parts;
    for (int i = 0; i < QAccessibleWidget::childCount(); ++i) {
        QAccessibleInterface* part = QAccessibleWidget::child(i);
        if (part && !decorates(part)) parts.append(part);
    }
    return parts;
}

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
    // Screen readers read out alerts and notifications when they appear. Qt passes on to the
    // accessibility bus that something appears, but not its own event for alerts.
    QAccessibleEvent shown{&widget, QAccessible::ObjectShow};
    QAccessible::updateAccessibility(&shown);
}

} // namespace quillon
