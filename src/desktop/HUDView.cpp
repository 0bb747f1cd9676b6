#include "desktop/HUDView.h"

#include "artwork/Brand.h"
#include "artwork/Colors.h"
#include "artwork/Mark.h"
#include "artwork/Shapes.h"
#include "artwork/Symbols.h"
#include "desktop/Shadow.h"
#include "ui/theme/Theme.h"

#include <QBitmap>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>

#include <cmath>
#include <utility>

namespace quillon {
namespace {

constexpr QColor amber{255, 194, 75};
constexpr TextStyle messageStyle{13, QFont::DemiBold};
constexpr double capsuleOpacity = 0.94;
constexpr double borderOpacity = 0.08;
constexpr Shadow shadow{.opacity = 0.30, .blur = 14, .offset = {0, 6}};

} // namespace

HUDView::HUDView(const std::string& text, std::string symbol, bool ok)
    : font_{Theme::font(messageStyle)},
      text_{wrapBannerText(QString::fromStdString(text), font_, Theme::length(1))},
      layout_{layOutBanner({text_.width, std::ceil(QFontMetricsF{font_}.height()) *
                                             static_cast<double>(text_.lines.size())},
                           Theme::length(1))},
      symbol_{std::move(symbol)},
      ok_{ok} {
    if (QGuiApplication::isRightToLeft()) layout_ = mirrored(layout_);
}

QPixmap HUDView::render(double devicePixelRatio, bool blended) const {
    QPixmap pixmap{(QSizeF{layout_.window} * devicePixelRatio).toSize()};
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(blended ? Qt::transparent : Brand::navy);
    QPainter painter{&pixmap};
    painter.setRenderHint(QPainter::Antialiasing);
    if (blended) {
        painter.drawPixmap(
            0, 0, capsuleShadow(layout_.window, layout_.capsule, shadow, devicePixelRatio));
    }
    paintCapsule(painter, blended);
    paintRow(painter, devicePixelRatio);
    return pixmap;
}

QRegion HUDView::outline() const {
    QBitmap mask{layout_.window};
    mask.clear();
    QPainter painter{&mask};
    painter.fillPath(capsulePath(layout_.capsule), Qt::color1);
    painter.end();
    return QRegion{mask};
}

void HUDView::paintCapsule(QPainter& painter, bool blended) const {
    if (blended) painter.fillPath(capsulePath(layout_.capsule), faded(Brand::navy, capsuleOpacity));
    painter.strokePath(capsulePath(layout_.capsule.adjusted(0.5, 0.5, -0.5, -0.5)),
                       QPen{faded(Qt::white, borderOpacity), 1});
}

void HUDView::paintRow(QPainter& painter, double devicePixelRatio) const {
    paintMark(painter, layout_.mark, Qt::white, Brand::coral);
    painter.setFont(font_);
    painter.setPen(Qt::white);
    const QFontMetricsF metrics{font_};
    const double height = layout_.text.height() / static_cast<double>(text_.lines.size());
    double baseline = layout_.text.top() + std::round(metrics.ascent());
    for (const QString& line : text_.lines) {
        const double left = QGuiApplication::isRightToLeft()
                                ? layout_.text.right() - metrics.horizontalAdvance(line)
                                : layout_.text.left();
        painter.drawText(QPointF{left, baseline}, line);
        baseline += height;
    }
    const QPixmap symbol = symbolPixmap(symbol_, layout_.symbol.width(), ok_ ? Brand::coral : amber,
                                        devicePixelRatio, SymbolWeight::bold);
    painter.drawPixmap(layout_.symbol.topLeft(), symbol);
}

} // namespace quillon
