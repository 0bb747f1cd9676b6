#include "ui/controls/ScrollBar.h"

#include "artwork/Colors.h"

#include <QAbstractScrollArea>
#include <QCommonStyle>
#include <QCoreApplication>
#include <QPainter>
#include <QStyleOptionSlider>

#include <algorithm>

namespace quillon {

namespace {

// In pixels, because what the pointer has to hit does not depend on the size of texts.
constexpr int extent = 12;
constexpr int leastHandle = 28;
constexpr int around = 3;        // between the handle and the bar's edges
constexpr int aroundTouched = 2; // while the pointer is on the bar

// Of the text's colour. The least keeps the contrast that graphics need (WCAG 2.2, 1.4.11).
constexpr double restingOpacity = 0.52;
constexpr double hoveredOpacity = 0.64;
constexpr double draggedOpacity = 0.76;

/// Places the parts of a scroll bar, so that pressing and dragging follow what is painted: the
/// handle moves over the whole length.
class ScrollBarStyle : public QCommonStyle {
public:
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option,
                                  const QWidget* widget) const override {
        if (metric == PM_ScrollBarExtent) return extent;
        return metric == PM_ScrollBarSliderMin ? leastHandle
                                               : QCommonStyle::pixelMetric(metric, option, widget);
    }

    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                       SubControl part, const QWidget* widget) const override {
        const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        if (control != CC_ScrollBar || !bar)
            return QCommonStyle::subControlRect(control, option, part, widget);
        const bool lying = bar->orientation == Qt::Horizontal;
        const int length = lying ? bar->rect.width() : bar->rect.height();
        const int handle = handleLength(*bar, length);
        const int start = sliderPositionFromValue(bar->minimum, bar->maximum, bar->sliderPosition,
                                                  length - handle, bar->upsideDown);
        const auto along = [&](int from, int to) {
            return lying ? QRect{from, 0, to - from, bar->rect.height()}
                         : QRect{0, from, bar->rect.width(), to - from};
        };
        switch (part) {
        case SC_ScrollBarGroove:
            return along(0, length);
        case SC_ScrollBarSlider:
            return along(start, start + handle);
        case SC_ScrollBarSubPage:
            return along(0, start);
        case SC_ScrollBarAddPage:
            return along(start + handle, length);
        default:
            return {};
        }
    }

private:
    /// As long a part of the bar as the visible part is of the whole.
    static int handleLength(const QStyleOptionSlider& bar, int length) {
        const double whole = double(bar.maximum) - bar.minimum + bar.pageStep;
        const double share = whole > 0 ? bar.pageStep / whole : 1;
        return std::clamp(int(length * share), std::min(leastHandle, length), length);
    }
};

QStyle* scrollBarStyle() {
    static auto* const style = [] {
        auto* made = new ScrollBarStyle;
        made->setParent(QCoreApplication::instance());
        return made;
    }();
    return style;
}

} // namespace

ScrollBar::ScrollBar(Qt::Orientation orientation) : Themed{orientation, nullptr} {
    setStyle(scrollBarStyle());
    setAttribute(Qt::WA_Hover);
    setAttribute(Qt::WA_OpaquePaintEvent, false);
}

void ScrollBar::paintEvent(QPaintEvent* /*event*/) {
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRectF handle =
        style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
    const bool touched = underMouse() || isSliderDown();
    const int inset = touched ? aroundTouched : around;
    const QRectF box = handle.adjusted(inset, inset, -inset, -inset);
    const double opacity = isSliderDown() ? draggedOpacity
                           : touched      ? hoveredOpacity
                                          : restingOpacity;
    QPainter painter{this};
    paintBox(painter, box, std::min(box.width(), box.height()) / 2,
             faded(theme().color(Ink::primary), opacity));
}

void useOwnScrollBars(QAbstractScrollArea& area) {
    area.setVerticalScrollBar(new ScrollBar{Qt::Vertical});
    area.setHorizontalScrollBar(new ScrollBar{Qt::Horizontal});
}

} // namespace quillon
