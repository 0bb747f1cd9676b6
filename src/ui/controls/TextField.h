#pragma once

#include "ui/theme/Themed.h"

#include <QLineEdit>

namespace quillon {

/// A field for a line of text, in a box with round corners. It needs an accessible name.
class TextField : public Themed<QLineEdit> {
    Q_OBJECT

public:
    TextField();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillon
