#include "send/PngStructure.h"

#include <QByteArrayView>
#include <QtEndian>

namespace quillon {

namespace {

// After the signature come chunks: four bytes of length, four of type, data of that length and four
// of check sum (W3C, PNG, 5.3).
constexpr QByteArrayView signature = "\x89PNG\r\n\x1a\n";
constexpr qsizetype typeAt = 4;
constexpr qsizetype dataAt = 8;
constexpr qsizetype frameSize = 12;

} // namespace

QSize pngSize(const QByteArray& png) {
    // The first chunk is IHDR, with width and height as its first fields (11.2.1).
    const qsizetype widthAt = signature.size() + dataAt;
    const qsizetype heightAt = widthAt + 4;
    if (png.size() < heightAt + 4 || !png.startsWith(signature)) return {};
    const auto number = [&](qsizetype at) { return qFromBigEndian<qint32>(png.constData() + at); };
    return {number(widthAt), number(heightAt)};
}

bool isCutPng(const QByteArray& png) {
    if (!png.startsWith(signature)) return false;
    for (qsizetype at = signature.size(); at + frameSize <= png.size();) {
        const bool last = QByteArrayView{png}.sliced(at + typeAt).startsWith("IEND");
        at += frameSize + qFromBigEndian<quint32>(png.constData() + at);
        if (last) return at > png.size();
    }
    return true;
}

} // namespace quillon
