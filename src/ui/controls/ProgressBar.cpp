#include "ui/controls/ProgressBar.h"

#include <QPainter>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <numbers>

namespace quillon {

namespace {

constexpr int thickness = 6;
constexpr int leastLength = 120;
/// The length of the piece that goes to and fro, as a share of the bar's, and the time for both
/// ways.
constexpr double piece = 0.3;
constexpr std::chrono::milliseconds wayTime{2400};
/// The place of the piece, from 0 to 1, while nothing may move.
constexpr double standing = 0.5;

} // namespace

ProgressBar::ProgressBar(const QString& name) : way_{0, [this](double) { update(); }} {
    setTextVisible(false);
    setRange(0, 0);
    setAccessibleName(name);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize ProgressBar::sizeHint() const {
    return {leastLength, thickness};
}

void ProgressBar::showEvent(QShowEvent* event) {
    Themed::showEvent(event);
    way_.turn(1, wayTime);
}

void ProgressBar::hideEvent(QHideEvent* event) {
    Themed::hideEvent(event);
    way_.arrive();
}

ProgressBar::Part ProgressBar::filledPart() const {
    if (maximum() > minimum())
        return {0, static_cast<double>(value() - minimum()) / (maximum() - minimum())};
    const double angle = 2 * std::numbers::pi * way_.value();
    const double place = way_.running() ? (1 - std::cos(angle)) / 2 : standing; // to and fro
    const double from = place * (1 - piece);
    return {from, from + piece};
}

void ProgressBar::paintEvent(QPaintEvent* /*event*/) {
    const Theme theme = this->theme();
    QPainter painter{this};
    const QRectF box{0, (height() - thickness) / 2.0, static_cast<double>(width()), thickness};
    const double radius = thickness / 2.0;
    paintBox(painter, box, radius, theme.hoverFill());
    const Part part = filledPart();
    if (part.to <= part.from) return;
    const double length = std::max<double>(thickness, (part.to - part.from) * box.width());
    const bool rightToLeft = layoutDirection() == Qt::RightToLeft;
    const double start = part.from * box.width();
    const QRectF filled{rightToLeft ? box.width() - start - length : start, box.top(), length,
                        box.height()};
    paintBox(painter, filled, radius, theme.color(Ink::accent));
}

} // namespace quillon
