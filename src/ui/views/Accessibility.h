#pragma once

#include <QAccessible>

namespace quillon {

/// Has Qt tell assistive technology about the views of this folder as they describe themselves,
/// where it would not know more of them than that they are widgets.
void describeViews();

/// Tells assistive technology that the states that are set in `changed` have changed.
void announce(QObject& object, QAccessible::State changed);

} // namespace quillon
