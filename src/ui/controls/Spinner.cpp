#include "ui/controls/Spinner.h"

#include "artwork/Colors.h"
#include "ui/accessibility/Accessibility.h"

#include <QPainter>

#include <chrono>
#include <utility>

namespace quillon {
namespace {

constexpr int spokes = 8;
constexpr std::chrono::milliseconds turnTime{800};
constexpr double faintest = 0.18;
// Shares of the radius.
constexpr double spokeStart = 0.48;
constexpr double spokeWidth = 0.20;

} // namespace

Spinner::Spinner(double size)
    : SquareView{size},
      turn_{0, [this](double turned) {
                const int step = static_cast<int>(turned) % spokes;
                if (std::exchange(step_, step) != step) update();
            }} {
    setAccessibleRole(QAccessible::ProgressBar);
    setAccessibleName(tr("Working"));
}

void Spinner::showEvent(QShowEvent* event) {
    SquareView::showEvent(event);
    turn_.turn(spokes, turnTime);
    announceBusy();
}

void Spinner::hideEvent(QHideEvent* event) {
    SquareView::hideEvent(event);
    turn_.arrive();
    announceBusy();
}

void Spinner::announceBusy() {
    QAccessible::State changed;
    changed.busy = true;
    announce(*this, changed);
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
