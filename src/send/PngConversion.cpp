#include "send/PngConversion.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QtConcurrentRun>

#include <utility>

namespace quillon {

namespace {

constexpr int allocationLimit = 512; // MB; a photograph of 100 megapixels takes 400

std::optional<QByteArray> converted(QByteArray bitmap) {
    QBuffer source{&bitmap};
    source.open(QIODevice::ReadOnly);
    QImageReader reader{&source};
    reader.setAutoTransform(true);
    const QImage image = reader.read();
    if (image.isNull()) return {};
    QByteArray png;
    QBuffer target{&png};
    target.open(QIODevice::WriteOnly);
    if (!image.save(&target, "PNG")) return {};
    return png;
}

} // namespace

QFuture<std::optional<QByteArray>> convertToPng(QByteArray bitmap) {
    [[maybe_unused]] static const bool raised = [] {
        QImageReader::setAllocationLimit(allocationLimit);
        return true;
    }();
    return QtConcurrent::run(converted, std::move(bitmap));
}

} // namespace quillon
