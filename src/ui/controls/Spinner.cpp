#include "ui/controls/Spinner.h"

#include "artwork/Colors.h"
#include "ui/accessibility/Accessibility.h"
#include "ui/theme/Motion.h"

#include <QPainter>
#include <QTimerEvent>

#include <chrono>

namespace quillon {
namespace {

constexpr int spokes = 8;
constexpr std::chrono::milliseconds stepTime{100};
constexpr double faintest = 0.18;
// Shares of the radius.
constexpr double spokeStart = 0.48;
constexpr double spokeWidth = 0.20;

} // namespace

Spinner::Spinner(double size) : SquareView{size} {
    setAccessibleRole(QAccessible::ProgressBar);
    setAccessibleName(tr("Working"));
}

void Spinner::showEvent(QShowEvent* event) {
    SquareView::showEvent(event);
    if (animationsEnabled()) timer_.start(static_cast<int>(stepTime.count()), this);
    announceBusy();
}

void Spinner::hideEvent(QHideEvent* event) {
    SquareView::hideEvent(event);
    timer_.stop();
    announceBusy();
}

void Spinner::announceBusy() {
    QAccessible::State changed;
    changed.busy = true;
    announce(*this, changed);
}

void Spinner::timerEvent(QTimerEvent* event) {
    if (event->timerId() != timer_.timerId()) return SquareView::timerEvent(event);
    step_ = (step_ + 1) % spokes;
    update();
}

void Spinner::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF{rect()}.center());
    const double radius = side() / 2;
    const double width = radius * spokeWidth;
    const QColor ink = theme().color(Ink::primary);
    for (int i = 0; i < spokes; ++i) {
        const int age = (step_ - i + spokes) % spokes;
        const double opacity = faintest + (1 - faintest) * (spokes - age) / spokes;
        painter.setPen(QPen{faded(ink, opacity * opacity), width, Qt::SolidLine, Qt::RoundCap});
        painter.drawLine(QPointF{0, -radius * spokeStart}, QPointF{0, -radius + width / 2});
        painter.rotate(360.0 / spokes);
    }
}

} // namespace quillon
