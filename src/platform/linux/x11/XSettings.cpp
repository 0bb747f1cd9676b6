#include "platform/linux/x11/XSettings.h"

#include <QDataStream>

#include <utility>

namespace quillon {

namespace {

enum Type : quint8 { integer = 0, string = 1, color = 2 };

/// No desktop has more settings than fit into this many units of four bytes.
constexpr std::uint32_t largestProperty = 16'384;
constexpr quint8 littleEndian = 0;
constexpr int colorBytes = 8;

/// Reads a text, which is padded to whole units of four bytes. Marks the stream as broken if it is
/// too short.
QByteArray readText(QDataStream& in, quint32 length) {
    if (length > largestProperty * 4) {
        in.setStatus(QDataStream::ReadCorruptData);
        return {};
    }
    QByteArray text{static_cast<qsizetype>(length), '\0'};
    if (in.readRawData(text.data(), static_cast<int>(length)) != static_cast<int>(length))
        in.setStatus(QDataStream::ReadPastEnd);
    in.skipRawData(static_cast<int>((4 - length % 4) % 4));
    return text;
}

QVariant readValue(QDataStream& in, quint8 type) {
    if (type == integer) {
        qint32 number = 0;
        in >> number;
        return number;
    }
    if (type == string) {
        quint32 length = 0;
        in >> length;
        return QString::fromUtf8(readText(in, length));
    }
    in.skipRawData(colorBytes);
    if (type != color) in.setStatus(QDataStream::ReadCorruptData);
    return {};
}

} // namespace

XSettingsValues parseXSettings(const QByteArray& property) {
    QDataStream in{property};
    quint8 order = 0;
    in >> order;
    in.setByteOrder(order == littleEndian ? QDataStream::LittleEndian : QDataStream::BigEndian);
    in.skipRawData(3);
    quint32 serial = 0;
    quint32 count = 0;
    in >> serial >> count;
    XSettingsValues values;
    for (; count > 0 && in.status() == QDataStream::Ok; --count) {
        quint8 type = 0;
        quint8 unused = 0;
        quint16 nameLength = 0;
        in >> type >> unused >> nameLength;
        const QByteArray name = readText(in, nameLength);
        in >> serial;
        const QVariant value = readValue(in, type);
        if (in.status() == QDataStream::Ok && value.isValid()) values[name.toStdString()] = value;
    }
    return values;
}

XSettings::XSettings(std::function<void(const XSettingsValues&)> changed)
    : changed_{std::move(changed)} {
    connect(&manager_, &X11ManagerSelection::ownerChanged, this, &XSettings::read);
    connect(&manager_, &X11ManagerSelection::propertyChanged, this, &XSettings::read);
    QMetaObject::invokeMethod(
        this, [this] { read(); }, Qt::QueuedConnection);
}

void XSettings::read() {
    const auto property = manager_.property(largestProperty);
    if (property.format == 8) changed_(parseXSettings(property.bytes));
}

} // namespace quillon
