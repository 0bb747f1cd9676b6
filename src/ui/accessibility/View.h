#pragma once

#include "ui/theme/Themed.h"

#include <QAccessible>
#include <QPointer>
#include <QString>
#include <QWidget>

namespace quillon {

/// A widget that paints itself and takes no input: the base of everything that is only looked at.
/// It tells assistive technology what it shows. A view without a text and without children counts
/// as decoration there.
class View : public Themed<QWidget> {
    Q_OBJECT

public:
    explicit View(QWidget* parent = nullptr);

    /// What the view is for assistive technology. An alert or a notification is read out as soon as
    /// it shows. What a static text or a list item shows already says all that the views inside
    /// would say, so that these are left out; buttons stay.
    void setAccessibleRole(QAccessible::Role role) { role_ = role; }
    [[nodiscard]] QAccessible::Role accessibleRole() const { return role_; }
    /// What it shows, in words. An accessible name, if it has one, takes precedence.
    [[nodiscard]] virtual QString accessibleText() const { return {}; }
    /// Whether it is working on something.
    [[nodiscard]] virtual bool accessibleBusy() const { return false; }

    /// The label beside it, which says what this is the value or the choice of.
    void setAccessibleLabel(QWidget* label) { label_ = label; }
    [[nodiscard]] QWidget* accessibleLabel() const { return label_; }

protected:
    /// To be called when accessibleText() has changed.
    void announceText();

private:
    QAccessible::Role role_ = QAccessible::Graphic;
    QPointer<QWidget> label_;
};

} // namespace quillon
