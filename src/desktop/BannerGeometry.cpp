#include "desktop/BannerGeometry.h"

#include "base/ShownText.h"

#include <QFontMetricsF>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace quillon {
namespace {

constexpr double markSide = 22;
constexpr double symbolSide = 16; // makes an outline icon as tall as bold text of 14 points
constexpr double between = 10;
constexpr double sidePadding = 16;
constexpr double endPadding = 10; // above and below the row
constexpr double margin = 16;

constexpr int fromTop = 12;
constexpr int fromBottom = 24;

constexpr double maxTextWidth = 380;
constexpr qsizetype maxLines = 2;

/// As much of the text from `start` on as fits into one line. There is more than that.
QString lastLine(const QString& text, qsizetype start, const QFont& font, double width) {
    QString rest = text.mid(start);
    const qsizetype end = rest.indexOf(QChar::LineSeparator);
    if (end >= 0) rest = rest.left(end) + QChar{0x2026};
    return QFontMetricsF{font}.elidedText(rest, Qt::ElideRight, width);
}

QString trimmedEnd(QString text) {
    while (!text.isEmpty() && text.back().isSpace())
        text.chop(1);
    return text;
}

} // namespace

BannerLayout layOutBanner(QSizeF text, double scale) {
    const double mark = std::round(markSide * scale);
    const double symbol = std::round(symbolSide * scale);
    const double side = std::round(sidePadding * scale);
    const double end = std::round(endPadding * scale);
    const double gap = std::round(between * scale);
    const double height = std::ceil(std::max(mark, text.height()));
    const double middle = margin + end + height / 2;
    double x = margin + side;
    const auto next = [&](QSizeF size) {
        const QRectF box{QPointF{x, middle - size.height() / 2}, size};
        x += size.width() + gap;
        return box;
    };
    BannerLayout layout;
    layout.mark = next({mark, mark});
    layout.text = next({std::ceil(text.width()), text.height()});
    layout.symbol = next({symbol, symbol});
    layout.capsule = {margin, margin, layout.symbol.right() + side - margin, height + 2 * end};
    layout.window = layout.capsule.adjusted(-margin, -margin, margin, margin).size().toSize();
    return layout;
}

BannerLayout mirrored(BannerLayout layout) {
    for (QRectF* const box : {&layout.mark, &layout.text, &layout.symbol})
        box->moveRight(layout.window.width() - box->left());
    return layout;
}

BannerAnchor bannerAnchor(BannerPosition position) {
    switch (position) {
    case BannerPosition::top:
        return {Overlay::Edge::top, fromTop};
    case BannerPosition::middle:
        return {};
    case BannerPosition::bottom:
        return {Overlay::Edge::bottom, fromBottom};
    }
    return {};
}

QRect bannerFrame(QRect visible, QSize window, BannerPosition position) {
    const auto [edge, distance] = bannerAnchor(position);
    const int x = visible.x() + (visible.width() - window.width()) / 2;
    const int room = visible.height() - window.height();
    const int y = edge == Overlay::Edge::top      ? distance
                  : edge == Overlay::Edge::bottom ? room - distance
                                                  : room / 2;
    return {QPoint{x, visible.y() + y}, window};
}

BannerText wrapBannerText(QString text, const QFont& font, double scale) {
    const double width = maxTextWidth * scale;
    text = shortened(text, maxLines * longestShown);
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(u'\n', QChar{QChar::LineSeparator});
    QTextLayout layout{text, font};
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    BannerText result;
    layout.beginLayout();
    qsizetype start = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        if (result.lines.size() == maxLines) {
            result.lines.back() = lastLine(text, start, font, width);
            break;
        }
        line.setLineWidth(width);
        start = line.textStart();
        result.lines << trimmedEnd(text.mid(start, line.textLength()));
    }
    layout.endLayout();
    if (result.lines.isEmpty()) result.lines << QString{};
    const QFontMetricsF metrics{font};
    for (const QString& line : result.lines)
        result.width = std::max(result.width, metrics.horizontalAdvance(line));
    return result;
}

} // namespace quillon
