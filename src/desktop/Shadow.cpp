#include "desktop/Shadow.h"

#include "artwork/Shapes.h"

#include <QImage>
#include <QLocale>
#include <QPainter>
#include <QPixmapCache>

#include <algorithm>
#include <cmath>
#include <vector>

namespace quillon {
namespace {

/// Over this much of the picture, from its edges inwards, the shadow fades to nothing.
constexpr double edge = 8;

/// Replaces each pixel of a line by the mean of the 2 * radius + 1 pixels around it. Pixels beyond
/// the line's ends count as zero. `before` is room for a copy of the line.
void blurLine(float* pixels, std::ptrdiff_t stride, int count, int radius,
              std::vector<float>& before) {
    for (int i = 0; i < count; ++i)
        before[static_cast<std::size_t>(i)] = pixels[i * stride];
    const auto at = [&](int i) {
        return i >= 0 && i < count ? before[static_cast<std::size_t>(i)] : 0.0F;
    };
    float sum = 0;
    for (int i = 0; i < radius; ++i)
        sum += at(i);
    for (int i = 0; i < count; ++i) {
        sum += at(i + radius) - at(i - radius - 1);
        pixels[i * stride] = sum / static_cast<float>(2 * radius + 1);
    }
}

/// Three means in each direction look like a Gaussian.
void blur(std::vector<float>& pixels, QSize size, double deviation) {
    const int radius =
        static_cast<int>(std::lround((std::sqrt(4 * deviation * deviation + 1) - 1) / 2));
    const int width = size.width();
    const int height = size.height();
    std::vector<float> before(static_cast<std::size_t>(std::max(width, height)));
    for (int pass = 0; pass < 3; ++pass) {
        for (int y = 0; y < height; ++y)
            blurLine(pixels.data() + std::ptrdiff_t{y} * width, 1, width, radius, before);
        for (int x = 0; x < width; ++x)
            blurLine(pixels.data() + x, width, height, radius, before);
    }
}

QImage drawCapsule(QSize pixels, const QRectF& box, double devicePixelRatio) {
    QImage image{pixels, QImage::Format_ARGB32_Premultiplied};
    image.fill(Qt::transparent);
    QPainter painter{&image};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(devicePixelRatio, devicePixelRatio);
    painter.fillPath(capsulePath(box), Qt::black);
    return image;
}

/// The share of the shadow that stays at this distance from the picture's edge, in
/// device-independent pixels.
float kept(double distance) {
    const double part = std::clamp(distance / edge, 0.0, 1.0);
    return static_cast<float>(part * (2 - part));
}

QPixmap drawShadow(QSize size, const QRectF& capsule, const Shadow& shadow,
                   double devicePixelRatio) {
    const QSize pixels = (QSizeF{size} * devicePixelRatio).toSize();
    QImage image = drawCapsule(pixels, capsule.translated(shadow.offset), devicePixelRatio);
    std::vector<float> alpha;
    alpha.reserve(static_cast<std::size_t>(pixels.width()) *
                  static_cast<std::size_t>(pixels.height()));
    for (int y = 0; y < pixels.height(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < pixels.width(); ++x)
            alpha.push_back(static_cast<float>(qAlpha(line[x])));
    }
    blur(alpha, pixels, shadow.blur / 2 * devicePixelRatio);
    auto value = alpha.cbegin();
    for (int y = 0; y < pixels.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < pixels.width(); ++x) {
            const int rim = std::min({x, y, pixels.width() - 1 - x, pixels.height() - 1 - y});
            const float share = kept(rim / devicePixelRatio) * static_cast<float>(shadow.opacity);
            line[x] = qRgba(0, 0, 0, static_cast<int>(std::lround(*value++ * share)));
        }
    }
    QPixmap pixmap = QPixmap::fromImage(std::move(image));
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

} // namespace

QPixmap capsuleShadow(QSize size, const QRectF& capsule, const Shadow& shadow,
                      double devicePixelRatio) {
    QString key = QStringLiteral("shadow");
    for (const double part : {double(size.width()), double(size.height()), capsule.x(), capsule.y(),
                              capsule.width(), capsule.height(), shadow.opacity, shadow.blur,
                              shadow.offset.x(), shadow.offset.y(), devicePixelRatio})
        key += QLatin1Char{'/'} + QString::number(part, 'g', QLocale::FloatingPointShortest);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap)) return pixmap;
    pixmap = drawShadow(size, capsule, shadow, devicePixelRatio);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

} // namespace quillon
