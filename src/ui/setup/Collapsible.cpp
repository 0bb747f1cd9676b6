#include "ui/setup/Collapsible.h"

#include <cmath>

namespace quillon {

Collapsible::Collapsible(QWidget* content)
    : content_{content},
      openness_{0, [this](double openness) {
                    setVisible(openness > 0 || openness_.target() > 0);
                    updateGeometry();
                }} {
    content_->setParent(this);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    hide();
}

void Collapsible::setOpen(bool open, bool animated) {
    if (open) show(); // at once, so that the content can take the focus
    openness_.go(open ? 1 : 0, animated);
}

int Collapsible::growthAhead() const {
    const double ahead = (openness_.target() - openness_.value()) * contentHeight(width());
    return static_cast<int>(std::lround(ahead));
}

QSize Collapsible::sizeHint() const {
    return {content_->sizeHint().width(), heightForWidth(width())};
}

int Collapsible::heightForWidth(int width) const {
    return static_cast<int>(std::lround(openness_.value() * contentHeight(width)));
}

int Collapsible::contentHeight(int width) const {
    return content_->hasHeightForWidth() ? content_->heightForWidth(width)
                                         : content_->sizeHint().height();
}

void Collapsible::layOut() {
    content_->setGeometry(0, 0, width(), contentHeight(width()));
}

void Collapsible::resizeEvent(QResizeEvent* event) {
    View::resizeEvent(event);
    layOut();
    // Of another width, it may want another height, for which the layout has not asked yet.
    if (heightForWidth(width()) != height()) updateGeometry();
}

bool Collapsible::event(QEvent* event) {
    // The content wants another size.
    if (event->type() == QEvent::LayoutRequest) {
        layOut();
        updateGeometry();
    }
    return View::event(event);
}

} // namespace quillon
