#include "ui/controls/Switch.h"

#include "artwork/Colors.h"
#include "ui/controls/Tile.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillon {
namespace {

constexpr double trackWidth = 36;
constexpr double trackHeight = 20;
constexpr double knobGap = 2;
constexpr double offOpacity = 0.30;
constexpr double gap = 10;
constexpr double comfortableTitle = 300;
constexpr double leastTitle = 64;

QSizeF trackSize() {
    return wholeSize(Theme::length(trackWidth), Theme::length(trackHeight));
}

QColor mixed(QColor from, QColor to, double share) {
    const auto part = [share](float one, float other) {
        return one + (other - one) * static_cast<float>(share);
    };
    return QColor::fromRgbF(part(from.redF(), to.redF()), part(from.greenF(), to.greenF()),
                            part(from.blueF(), to.blueF()), part(from.alphaF(), to.alphaF()));
}

} // namespace

Switch::Switch(const QString& title, std::string symbol, QColor color)
    : PressedByReturn{title},
      symbol_{std::move(symbol)},
      color_{color},
      position_{0, [this](double) { update(); }} {
    QSizePolicy policy{QSizePolicy::Preferred, QSizePolicy::Minimum};
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    connect(this, &QCheckBox::toggled, this, [this](bool on) {
        position_.go(on ? 1 : 0, isVisible());
        if (!showing_) Q_EMIT switched(on);
    });
}

void Switch::showOn(bool on) {
    showing_ = true;
    setChecked(on);
    showing_ = false;
}

void Switch::hideEvent(QHideEvent* event) {
    position_.arrive();
    PressedByReturn::hideEvent(event);
}

TextBlock Switch::titleBlock() const {
    return TextBlock::title(text(), Theme::font(Text::body), layoutDirection(),
                            underlinesMnemonic());
}

double Switch::besideTitle() const {
    return Tile::side() + 2 * gap + trackSize().width();
}

QSize Switch::sizeHint() const {
    return hintFor(comfortableTitle);
}

QSize Switch::minimumSizeHint() const {
    return hintFor(leastTitle);
}

QSize Switch::hintFor(double mostTitle) const {
    const double title = std::min(titleBlock().naturalWidth(), Theme::length(mostTitle));
    const int width = static_cast<int>(std::ceil(title + besideTitle()));
    return {width, heightForWidth(width)};
}

int Switch::heightForWidth(int width) const {
    TextBlock title = titleBlock();
    const double text = title.wrap(std::max(1.0, width - besideTitle())).height();
    return static_cast<int>(
        std::ceil(std::max<double>({trackSize().height(), double(Tile::side()), text})));
}

bool Switch::hitButton(const QPoint& position) const {
    return rect().contains(position);
}

void Switch::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    paintTitle(painter);
    paintTrack(painter);
}

void Switch::paintTitle(QPainter& painter) const {
    const Theme theme = this->theme();
    const bool rightToLeft = layoutDirection() == Qt::RightToLeft;
    const double side = Tile::side();
    const double x = rightToLeft ? width() - side : 0;
    Tile::paint(painter, {x, std::floor((height() - side) / 2), side, side}, symbol_, color_,
                theme);
    const double before = side + gap;
    TextBlock title = titleBlock();
    const double room = std::max(1.0, width() - besideTitle());
    const QSizeF size = title.wrap(room);
    painter.setPen(theme.color(Ink::primary));
    title.paint(painter, {rightToLeft ? width() - before - room : before,
                          std::floor((height() - size.height()) / 2)});
}

void Switch::paintTrack(QPainter& painter) const {
    const Theme theme = this->theme();
    const QSizeF size = trackSize();
    const bool rightToLeft = layoutDirection() == Qt::RightToLeft;
    const QRectF track{QPointF{rightToLeft ? 0 : width() - size.width(),
                               std::floor((height() - size.height()) / 2)},
                       size};
    const double radius = size.height() / 2;
    const QColor off =
        faded(theme.color(Ink::primary), underMouse() ? offOpacity + 0.06 : offOpacity);
    painter.setPen(Qt::NoPen);
    painter.setBrush(mixed(off, theme.color(Ink::accent), position_.value()));
    painter.drawRoundedRect(track, radius, radius);

    const double knob = size.height() - 2 * knobGap;
    const double way = size.width() - 2 * knobGap - knob;
    const double along = rightToLeft ? 1 - position_.value() : position_.value();
    const QRectF disc{track.left() + knobGap + way * along, track.top() + knobGap, knob, knob};
    painter.setBrush(theme.fill(faded(Qt::black, 0.20)));
    painter.drawEllipse(disc.translated(0, 1));
    painter.setBrush(QColor{Qt::white});
    painter.drawEllipse(disc);
    if (showsFocus())
        theme.paintFocusRing(painter, track.adjusted(-0.5, -0.5, 0.5, 0.5), radius, Ink::primary);
}

} // namespace quillon
