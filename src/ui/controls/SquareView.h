#pragma once

#include "ui/accessibility/View.h"

namespace quillon {

/// A picture in a square that grows and shrinks with the text around it.
class SquareView : public View {
    Q_OBJECT

public:
    /// `size` in points of the design.
    explicit SquareView(double size);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    /// The length of its sides in device-independent pixels, before it is rounded up to whole ones.
    [[nodiscard]] double side() const;

private:
    double size_;
};

} // namespace quillon
