#pragma once

#include "ui/accessibility/View.h"

#include <QBasicTimer>

namespace quillon {

/// Turns while something is being done. It takes no time of the processor while it does not show,
/// and stands still where animations are reduced.
class Spinner : public View {
    Q_OBJECT

public:
    /// `size` in points of the design; it grows with the text.
    explicit Spinner(double size = 16, QWidget* parent = nullptr);

    /// Whether it turns at the moment.
    [[nodiscard]] bool turning() const { return timer_.isActive(); }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
    [[nodiscard]] QAccessible::Role accessibleRole() const override;
    [[nodiscard]] QString accessibleText() const override;
    [[nodiscard]] bool accessibleBusy() const override { return isVisible(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void announceBusy();

    double size_;
    int step_ = 0;
    QBasicTimer timer_;
};

} // namespace quillon
