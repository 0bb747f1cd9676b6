#include "send/PngConversion.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QLibrary>
#include <QScopedValueRollback>
#include <QtConcurrentRun>

#include <cstdarg>
#include <mutex>
#include <utility>

namespace quillon {

namespace {

constexpr int allocationLimit = 512; // MB; a photograph of 100 megapixels takes 400

/// This thread converts a picture. What Qt and its libraries then find odd in it is nothing to
/// write to standard error, where a command's own sentence stands.
thread_local bool converting = false;

QtMessageHandler usualHandler = nullptr;

void passOn(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (!converting) usualHandler(type, context, message);
}

/// The same for libtiff, which writes by itself. By its name and version, because Qt's plugin,
/// which brings it, offers no way.
void silenceTiff() {
    using Handler = void (*)(const char*, const char*, std::va_list);
    using Replace = Handler (*)(Handler);
    constexpr int version = 6; // libtiff.so.6, since 2022
    for (const char* const name : {"TIFFSetWarningHandler", "TIFFSetErrorHandler"}) {
        const auto replace = QLibrary::resolve(QStringLiteral("tiff"), version, name);
        if (replace) reinterpret_cast<Replace>(replace)(nullptr);
    }
}

std::optional<QByteArray> converted(QByteArray bitmap) {
    const QScopedValueRollback quiet{converting, true};
    QBuffer source{&bitmap};
    source.open(QIODevice::ReadOnly);
    QImageReader reader{&source};
    if (reader.format() == "png") return bitmap; // under another name
    if (reader.format() == "tiff") {
        static std::once_flag silenced;
        std::call_once(silenced, silenceTiff);
    }
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
    [[maybe_unused]] static const bool prepared = [] {
        QImageReader::setAllocationLimit(allocationLimit);
        usualHandler = qInstallMessageHandler(nullptr);
        qInstallMessageHandler(passOn);
        return true;
    }();
    return QtConcurrent::run(converted, std::move(bitmap));
}

} // namespace quillon
