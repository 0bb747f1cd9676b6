#pragma once

#include "ui/controls/SquareView.h"

#include <QBasicTimer>

namespace quillon {

/// Turns while something is being done. While it does not show it takes no processor time, and if
/// the user wants no animations it stands still.
class Spinner : public SquareView {
    Q_OBJECT

public:
    /// `size` in points of the design.
    explicit Spinner(double size = 16);

    /// Whether it is turning now.
    [[nodiscard]] bool turning() const { return timer_.isActive(); }

    [[nodiscard]] bool accessibleBusy() const override { return isVisible(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void announceBusy();

    int step_ = 0;
    QBasicTimer timer_;
};

} // namespace quillon
