#include "ui/theme/Theme.h"

#include "artwork/Brand.h"
#include "artwork/Colors.h"
#include "artwork/Palette.h"

#include <QFontInfo>
#include <QGraphicsOpacityEffect>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillon {
namespace {

constexpr double secondaryOpacity = 0.72;
constexpr double tertiaryOpacity = 0.62;
constexpr double lightCard = 0.62; // of white over the window's colour
constexpr double darkCard = 0.06;
constexpr double tileContrast = 2;
constexpr QColor red{235, 60, 60};
/// The palette's orange, darkened until it is legible, would be brown.
constexpr QColor deepOrange{222, 98, 0};
constexpr const char* brightProperty = "quillon_bright";

/// Whether the widget is disabled and does not keep its colours meanwhile.
bool looksDisabled(const QWidget& widget) {
    if (widget.isEnabled()) return false;
    for (const QWidget* each = &widget; each; each = each->parentWidget()) {
        if (each->property(brightProperty).toBool()) return false;
    }
    return true;
}

/// The application's font for the resolution that everything is painted in. On Wayland, Qt makes it
/// before it knows any screen, and measures by a guess.
QFont applicationFont() {
    static const QImage canvas{1, 1, QImage::Format_ARGB32_Premultiplied};
    return {QGuiApplication::font(), &canvas};
}

} // namespace

Theme::Theme(const QWidget& widget) : Theme{widget.palette(), !looksDisabled(widget)} {}

Theme::Theme(QPalette palette, bool enabled) : palette_{std::move(palette)}, enabled_{enabled} {
    palette_.setCurrentColorGroup(QPalette::Active);
    const QColor ground = palette_.color(QPalette::Window);
    dark_ = contrast(ground, Qt::white) > contrast(ground, Qt::black);
}

QColor Theme::color(const Tint& tint) const {
    if (const QColor* certain = std::get_if<QColor>(&tint)) return fill(*certain);
    const QColor text = palette_.color(QPalette::WindowText);
    switch (std::get<Ink>(tint)) {
    case Ink::primary:
        return fill(text);
    case Ink::secondary:
        return fill(faded(text, secondaryOpacity));
    case Ink::tertiary:
        return fill(faded(text, tertiaryOpacity));
    case Ink::accent:
        return fill(legible(dark_ ? Brand::coral : Brand::coralDeep, cardFill(), graphicContrast));
    case Ink::warning:
        return fill(readable(dark_ ? Palette::orange : deepOrange));
    case Ink::destructive:
        return fill(readable(red));
    }
    return text;
}

QColor Theme::fill(QColor color) const {
    return enabled_ ? color : faded(color, dimmedOpacity);
}

QColor Theme::quaternaryFill() const {
    return fill(faded(palette_.color(QPalette::WindowText), dark_ ? 0.10 : 0.06));
}

QColor Theme::hoverFill() const {
    return fill(faded(palette_.color(QPalette::WindowText), dark_ ? 0.15 : 0.10));
}

QColor Theme::pressedFill() const {
    return fill(faded(palette_.color(QPalette::WindowText), dark_ ? 0.22 : 0.17));
}

QColor Theme::cardFill() const {
    return laidOver(faded(Qt::white, dark_ ? darkCard : lightCard),
                    palette_.color(QPalette::Window));
}

QColor Theme::separator() const {
    return faded(palette_.color(QPalette::WindowText), dark_ ? 0.13 : 0.11);
}

QColor Theme::readable(QColor color) const {
    return legible(legible(color, palette_.color(QPalette::Window), textContrast), cardFill(),
                   textContrast);
}

QColor Theme::onTile(QColor tile) {
    return contrast(Qt::white, tile) >= tileContrast ? QColor{Qt::white} : Brand::navy;
}

void Theme::paintFocusRing(QPainter& painter, const QRectF& box, double radius,
                           const Tint& tint) const {
    // On a fill, the ring leaves a rim of the fill outside, because it may have the same colour as
    // what surrounds the control.
    const bool onFill = std::holds_alternative<QColor>(tint);
    const double inset = Space::focusWidth * (onFill ? 1.5 : 0.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen{color(tint), Space::focusWidth});
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(box.adjusted(inset, inset, -inset, -inset), radius - inset,
                            radius - inset);
    painter.restore();
}

QFont Theme::font(const TextStyle& style) {
    QFont font = applicationFont();
    const double factor = style.points / Text::body.points;
    if (font.pointSizeF() > 0) {
        font.setPointSizeF(font.pointSizeF() * factor);
    } else {
        font.setPixelSize(std::max(1, qRound(font.pixelSize() * factor)));
    }
    font.setWeight(style.weight);
    return font;
}

double Theme::textScale() {
    return QFontInfo{applicationFont()}.pixelSize() / Text::body.points;
}

double Theme::length(double points) {
    return points * std::max(1.0, textScale());
}

int Theme::wholeLength(double points) {
    return static_cast<int>(std::ceil(length(points)));
}

QHBoxLayout* rowIn(QWidget* widget, int spacing, int margin) {
    auto* row = new QHBoxLayout{widget};
    row->setContentsMargins(margin, margin, margin, margin);
    row->setSpacing(spacing);
    return row;
}

QVBoxLayout* columnIn(QWidget* widget, int spacing, int margin) {
    auto* column = new QVBoxLayout{widget};
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(spacing);
    return column;
}

QSize wholeSize(double width, double height) {
    return {static_cast<int>(std::ceil(width)), static_cast<int>(std::ceil(height))};
}

void setBrightWhileDisabled(QWidget& widget, bool bright) {
    widget.setProperty(brightProperty, bright);
}

void setOpacity(QWidget& widget, double opacity) {
    if (opacity >= 1) return widget.setGraphicsEffect(nullptr);
    auto* effect = qobject_cast<QGraphicsOpacityEffect*>(widget.graphicsEffect());
    if (!effect) {
        effect = new QGraphicsOpacityEffect{&widget};
        widget.setGraphicsEffect(effect);
    }
    effect->setOpacity(opacity);
}

void paintBox(QPainter& painter, const QRectF& box, double radius, const QBrush& fill,
              const QPen& line) {
    const double inset = line.style() == Qt::NoPen ? 0 : line.widthF() / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(line);
    painter.setBrush(fill);
    painter.drawRoundedRect(box.adjusted(inset, inset, -inset, -inset), radius, radius);
    painter.restore();
}

} // namespace quillon
