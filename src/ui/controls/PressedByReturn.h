#pragma once

#include "ui/theme/Themed.h"

#include <QKeyEvent>

namespace quillon {

/// Adds to a button class that Return and Enter press it while it has the focus, as Space does.
template <typename Button>
class PressedByReturn : public Themed<Button> {
public:
    using Themed<Button>::Themed;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return this->click();
        Themed<Button>::keyPressEvent(event);
    }
};

} // namespace quillon
