#pragma once

#include "ui/theme/Themed.h"

#include <QScrollBar>

class QAbstractScrollArea;

namespace quillon {

/// A scroll bar in the program's own look: a round handle on nothing, without arrows.
class ScrollBar : public Themed<QScrollBar> {
    Q_OBJECT

public:
    explicit ScrollBar(Qt::Orientation orientation);

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// Gives a view that scrolls such bars in place of the style's.
void useOwnScrollBars(QAbstractScrollArea& area);

} // namespace quillon
