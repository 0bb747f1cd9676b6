#pragma once

#include "ui/theme/Themed.h"

#include <QAccessible>
#include <QPointer>
#include <QString>
#include <QWidget>

namespace quillon {

/// A widget that paints itself and takes no input: the base of everything that is only looked at.
/// Tells assistive technology what it shows; one that says nothing and holds nothing counts as
/// decoration there.
class View : public Themed<QWidget> {
    Q_OBJECT

public:
    explicit View(QWidget* parent = nullptr);

    /// What it is for assistive technology.
    [[nodiscard]] virtual QAccessible::Role accessibleRole() const { return QAccessible::Graphic; }
    /// What it shows, in words, unless it was given an accessible name.
    [[nodiscard]] virtual QString accessibleText() const { return {}; }
    /// Works on something.
    [[nodiscard]] virtual bool accessibleBusy() const { return false; }
    /// Says by itself all that the views in it would say.
    [[nodiscard]] virtual bool accessibleWhole() const { return false; }

    /// What stands beside it and says what it is the value or the choice of.
    void setAccessibleLabel(QWidget* label) { label_ = label; }
    [[nodiscard]] QWidget* accessibleLabel() const { return label_; }

protected:
    /// To be called when what accessibleText() gives has changed.
    void announceText();

private:
    QPointer<QWidget> label_;
};

} // namespace quillon
