#pragma once

#include <QAccessible>
#include <QWidget>

#include <gtest/gtest.h>

#include <string>

namespace quillon::test {

/// What assistive technology is told about the widget.
inline QAccessibleInterface& accessible(QWidget& widget) {
    QAccessibleInterface* found = QAccessible::queryAccessibleInterface(&widget);
    EXPECT_NE(found, nullptr);
    return *found;
}

inline std::string accessibleName(QWidget& widget) {
    return accessible(widget).text(QAccessible::Name).toStdString();
}

} // namespace quillon::test
