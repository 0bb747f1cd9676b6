#include "ui/controls/MenuBarIcon.h"

#include "artwork/Mark.h"
#include "ui/controls/PaintedIcon.h"

namespace quillon::MenuBarIcon {

QIcon image(QColor tint, const QString& name) {
    const auto paint = [tint](QPainter& painter, const QRectF& frame) {
        const double margin = frame.width() / 16.0;
        paintPlainMark(painter, frame.adjusted(margin, margin, -margin, -margin), tint);
    };
    // The sizes that panels show at scale factors from 1 to 3.
    return QIcon{new PaintedIcon{paint, {16, 22, 24, 32, 44, 48, 64}, name}};
}

} // namespace quillon::MenuBarIcon
