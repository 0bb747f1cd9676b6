#include "ui/controls/SquareView.h"

#include <cmath>

namespace quillon {

SquareView::SquareView(double size) : size_{size} {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize SquareView::sizeHint() const {
    const int whole = static_cast<int>(std::ceil(side()));
    return {whole, whole};
}

double SquareView::side() const {
    return size_ * Theme::textScale();
}

} // namespace quillon
