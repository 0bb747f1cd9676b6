#include "ui/controls/BrandViews.h"

#include "artwork/Brand.h"
#include "artwork/Colors.h"
#include "artwork/Mark.h"
#include "ui/text/SymbolView.h"

#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace quillon {
namespace {

constexpr QColor iconTop{38, 50, 88};
constexpr double iconRadius = 0.225; // of its side
constexpr double iconMark = 0.60;
constexpr double iconRim = 0.10; // opacity
constexpr double tracking = -0.3;
constexpr double planeDisc = 0.80; // of the icon: the white that shows through the plane's cut-out
constexpr int accentFrom = 5;      // "on" has the accent colour

QString productName() {
    return QStringLiteral("Quillon");
}

QRectF centredSquare(const QRectF& frame) {
    const double side = std::min(frame.width(), frame.height());
    QRectF box{0, 0, side, side};
    box.moveCenter(frame.center());
    return box;
}

} // namespace

void paintAppIcon(QPainter& painter, const QRectF& frame) {
    const QRectF box = centredSquare(frame);
    const double radius = box.width() * iconRadius;
    QLinearGradient ground{box.topLeft(), box.bottomLeft()};
    ground.setColorAt(0, iconTop);
    ground.setColorAt(1, Brand::navy);
    paintBox(painter, box, radius, ground);
    // A rim keeps it apart from dark windows.
    paintBox(painter, box, radius - 0.5, Qt::NoBrush, faded(Qt::white, iconRim));
    const double inset = box.width() * (1 - iconMark) / 2;
    paintMark(painter, box.adjusted(inset, inset, -inset, -inset), Qt::white, Brand::coral);
}

void AppIconView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter{this};
    paintAppIcon(painter, rect());
}

Wordmark::Wordmark(double points, Tint ink) : points_{points}, ink_{ink} {
    setAccessibleRole(QAccessible::StaticText);
    setAccessibleName(productName());
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QFont Wordmark::font() const {
    QFont font = Theme::font({points_, QFont::ExtraBold});
    font.setLetterSpacing(QFont::AbsoluteSpacing, tracking * Theme::textScale());
    return font;
}

QSize Wordmark::sizeHint() const {
    const QFontMetricsF metrics{font()};
    return {static_cast<int>(std::ceil(metrics.horizontalAdvance(productName()))) + 1,
            static_cast<int>(std::ceil(metrics.height()))};
}

void Wordmark::paintEvent(QPaintEvent* /*event*/) {
    const Theme theme = this->theme();
    QTextLayout layout{productName(), font()};
    QTextLayout::FormatRange accent{.start = accentFrom,
                                    .length = static_cast<int>(productName().size()) - accentFrom,
                                    .format = {}};
    accent.format.setForeground(theme.fill(Brand::coral));
    layout.setFormats({accent});
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(width() + 1);
    layout.endLayout();
    QPainter painter{this};
    painter.setPen(theme.color(ink_));
    layout.draw(&painter, {0, std::floor((height() - line.height()) / 2)});
}

void TelegramIcon::paintEvent(QPaintEvent* /*event*/) {
    const Theme theme = this->theme();
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    const double side = sizeHint().width();
    const double radius = side * planeDisc / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.fill(Qt::white));
    painter.drawEllipse(QRectF{rect()}.center(), radius, radius);
    paintSymbol(painter, rect(), telegramSymbol, side, theme.fill(telegramBlue));
}

} // namespace quillon
