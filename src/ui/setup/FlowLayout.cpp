#include "ui/setup/FlowLayout.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace quillon {

FlowLayout::FlowLayout(int spacing) {
    setContentsMargins(0, 0, 0, 0);
    setSpacing(spacing);
}

void FlowLayout::addItem(QLayoutItem* item) {
    items_.emplace_back(item);
}

QLayoutItem* FlowLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
    if (index < 0 || index >= count()) return nullptr;
    const auto at = items_.begin() + index;
    QLayoutItem* item = at->release();
    items_.erase(at);
    return item;
}

QSize FlowLayout::sizeHint() const {
    QSize size;
    for (const auto& item : items_) {
        if (item->isEmpty()) continue;
        const QSize each = item->sizeHint();
        size = {size.width() + each.width() + (size.width() > 0 ? spacing() : 0),
                std::max(size.height(), each.height())};
    }
    return size;
}

QSize FlowLayout::minimumSize() const {
    QSize size;
    for (const auto& item : items_)
        size = size.expandedTo(item->minimumSize());
    return size;
}

int FlowLayout::heightForWidth(int width) const {
    return arrange({0, 0, width, 0}, false);
}

void FlowLayout::setGeometry(const QRect& frame) {
    QLayout::setGeometry(frame);
    arrange(frame, true);
}

int FlowLayout::arrange(const QRect& frame, bool move) const {
    const Qt::LayoutDirection direction =
        parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    int x = 0;
    int y = 0;
    int lineHeight = 0;
    for (const auto& item : items_) {
        if (item->isEmpty()) continue;
        const QSize size =
            item->sizeHint().boundedTo({std::max(frame.width(), 0), QLAYOUTSIZE_MAX});
        if (x > 0 && x + size.width() > frame.width()) {
            x = 0;
            y += lineHeight + spacing();
            lineHeight = 0;
        }
        const QRect place{frame.topLeft() + QPoint{x, y}, size};
        if (move) item->setGeometry(QStyle::visualRect(direction, frame, place));
        x += size.width() + spacing();
        lineHeight = std::max(lineHeight, size.height());
    }
    return y + lineHeight;
}

} // namespace quillon
