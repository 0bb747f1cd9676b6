#pragma once

#include <QAccessible>

class QWidget;

namespace quillon {

/// Has Qt tell assistive technology about the views of this folder as they describe themselves, and
/// about widgets that only hold others, where it would not know more of them than that they are
/// widgets.
void describeViews();

/// Tells assistive technology that the states that are set in `changed` have changed.
void announce(QObject& object, QAccessible::State changed);

/// Gives a control a description, and tells of it when it is new; a widget's own setter tells each
/// time it is called.
void setDescription(QWidget& control, const QString& description);

/// Has screen readers read an alert or a notification that already shows, for its text is new.
void readOut(QWidget& widget);

} // namespace quillon
