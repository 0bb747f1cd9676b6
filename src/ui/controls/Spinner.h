#pragma once

#include "ui/controls/SquareView.h"
#include "ui/theme/Animation.h"

namespace quillon {

/// Turns while something is being done. While it does not show it takes no processor time, and if
/// the user wants no animations it stands still.
class Spinner : public SquareView {
    Q_OBJECT

public:
    /// `size` in points of the design.
    explicit Spinner(double size = 16);

    /// Whether it is turning now.
    [[nodiscard]] bool turning() const { return turn_.running(); }

    [[nodiscard]] bool accessibleBusy() const override { return isVisible(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void announceBusy();

    int step_ = 0;
    Animation turn_; // in steps
};

} // namespace quillon
