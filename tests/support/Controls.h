#pragma once

#include "ui/text/IconLabel.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGraphicsOpacityEffect>
#include <QTest>

#include <gtest/gtest.h>

#include <stdexcept>

namespace quillon::test {

/// The only window that shows; null when none does.
inline QWidget* shownWindow() {
    QWidget* found = nullptr;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible()) continue;
        EXPECT_EQ(found, nullptr) << "two windows at once";
        found = window;
    }
    return found;
}

/// What assistive technology is told about the widget.
inline QAccessibleInterface& accessible(QWidget& widget) {
    return *QAccessible::queryAccessibleInterface(&widget);
}
inline QString nameOf(QWidget& widget) {
    return accessible(widget).text(QAccessible::Name);
}

/// What a user of assistive technology, a mouse or a keyboard finds in a window: the widgets that
/// show, by their accessible names. Names that are literals are in UTF-8.
class Controls {
public:
    /// Shows the window.
    explicit Controls(QWidget& root) : root_{root} {
        root.show();
        QCoreApplication::processEvents();
    }

    /// All there is to be seen: texts as they are written, other things by name.
    [[nodiscard]] std::vector<std::string> seen() const {
        std::vector<std::string> names;
        for (QWidget* widget : root_.findChildren<QWidget*>()) {
            const auto* label = qobject_cast<const IconLabel*>(widget);
            const QString name = label ? label->text().plain() : nameOf(*widget);
            if (widget->isVisible() && !name.isEmpty()) names.push_back(name.toStdString());
        }
        return names;
    }

    /// Null when none shows.
    template <typename T = QWidget>
    [[nodiscard]] T* find(QAnyStringView name) const {
        for (T* each : root_.findChildren<T*>()) {
            if (each->isVisible() && nameOf(*each) == name) return each;
        }
        return nullptr;
    }

    template <typename T = QAbstractButton>
    [[nodiscard]] T& get(QAnyStringView name) const {
        T* found = find<T>(name);
        if (!found)
            throw std::runtime_error{"there is no \"" + name.toString().toStdString() + "\""};
        return *found;
    }

    [[nodiscard]] bool shows(QAnyStringView name) const { return find(name) != nullptr; }
    template <typename T = QAbstractButton>
    [[nodiscard]] bool enabled(QAnyStringView name) const {
        return get<T>(name).isEnabled();
    }

    /// In its middle: whatever lies on top there gets the click. What is disabled does not notice.
    template <typename T = QAbstractButton>
    void click(QAnyStringView name) const {
        QCoreApplication::sendPostedEvents(); // the layout that a change has asked for
        QCoreApplication::processEvents();
        T& widget = get<T>(name);
        QWidget& window = *widget.window();
        const QPoint place = widget.mapTo(&window, widget.rect().center());
        QWidget* hit = window.childAt(place); // none beyond what the window has room for
        if (!hit) hit = &widget;
        QTest::mouseClick(hit, Qt::LeftButton, {}, hit->mapFrom(&window, place));
        QCoreApplication::processEvents();
    }

    /// Of a widget with all that it lies in.
    [[nodiscard]] double opacity(QAnyStringView name) const {
        double opacity = 1;
        for (QWidget* at = &get<QWidget>(name); at; at = at->parentWidget()) {
            if (const auto* effect = qobject_cast<QGraphicsOpacityEffect*>(at->graphicsEffect()))
                opacity *= effect->opacity();
        }
        return opacity;
    }

private:
    QWidget& root_;
};

} // namespace quillon::test
