#pragma once

#include <QAccessible>
#include <QWidget>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

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

/// Hears what is told to assistive technology, for as long as it lives.
class Announcements {
public:
    Announcements() {
        heard().clear();
        QAccessible::setActive(true);
        QAccessible::installUpdateHandler(
            [](QAccessibleEvent* event) { heard().push_back(event->type()); });
    }

    Announcements(const Announcements&) = delete;
    Announcements& operator=(const Announcements&) = delete;
    ~Announcements() {
        QAccessible::installUpdateHandler(nullptr);
        QAccessible::setActive(false);
    }

    [[nodiscard]] long count(QAccessible::Event type) const {
        return std::ranges::count(heard(), type);
    }

private:
    static std::vector<QAccessible::Event>& heard() {
        static std::vector<QAccessible::Event> events;
        return events;
    }
};

} // namespace quillon::test
