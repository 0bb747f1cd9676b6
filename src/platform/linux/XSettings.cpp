#include "platform/linux/XSettings.h"

#include "platform/linux/X11Connection.h"

#include <QDataStream>
#include <QGuiApplication>

#include <optional>
#include <utility>

namespace quillon {

namespace {

enum Type : quint8 { integer = 0, string = 1, color = 2 };

/// More than any desktop has, in units of four bytes.
constexpr std::uint32_t largestProperty = 16'384;
constexpr quint8 littleEndian = 0;
constexpr int colorBytes = 8;
constexpr std::uint8_t sentFlag = 0x80;

/// Texts are filled up to whole units of four bytes. Ends the stream where it is too short.
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
    xcb_connection_t* const connection = qtConnection();
    if (!connection) return;
    selection_ = managerSelection(connection, "_XSETTINGS");
    property_ = internAtom(connection, "_XSETTINGS_SETTINGS");
    coming_ = internAtom(connection, "MANAGER");
    qApp->installNativeEventFilter(this);
    later(&XSettings::lookForManager);
}

XSettings::~XSettings() {
    if (qApp) qApp->removeNativeEventFilter(this);
}

void XSettings::later(void (XSettings::*action)()) {
    QMetaObject::invokeMethod(
        this, [this, action] { (this->*action)(); }, Qt::QueuedConnection);
}

void XSettings::lookForManager() {
    xcb_connection_t* const connection = qtConnection();
    const auto cookie = xcb_get_selection_owner(connection, selection_);
    const XcbPointer<xcb_get_selection_owner_reply_t> reply{
        xcb_get_selection_owner_reply(connection, cookie, nullptr)};
    manager_ = reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
    if (manager_ == XCB_WINDOW_NONE) return;
    // Qt asks for the same events of the same window, for other settings.
    const std::uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(connection, manager_, XCB_CW_EVENT_MASK, &events);
    read();
}

void XSettings::read() {
    xcb_connection_t* const connection = qtConnection();
    const auto cookie = xcb_get_property(connection, 0, manager_, property_,
                                         XCB_GET_PROPERTY_TYPE_ANY, 0, largestProperty);
    const XcbPointer<xcb_get_property_reply_t> reply{
        xcb_get_property_reply(connection, cookie, nullptr)};
    if (!reply || reply->format != 8) return;
    const auto* const bytes = static_cast<const char*>(xcb_get_property_value(reply.get()));
    changed_(parseXSettings(QByteArray{bytes, xcb_get_property_value_length(reply.get())}));
}

bool XSettings::nativeEventFilter(const QByteArray& type, void* message, qintptr* /*result*/) {
    if (type != "xcb_generic_event_t") return false;
    const auto* const event = static_cast<const xcb_generic_event_t*>(message);
    const auto kind = static_cast<std::uint8_t>(event->response_type & ~sentFlag);
    if (kind == XCB_CLIENT_MESSAGE) {
        const auto* const told = reinterpret_cast<const xcb_client_message_event_t*>(event);
        if (told->type == coming_ && told->data.data32[1] == selection_)
            later(&XSettings::lookForManager);
    } else if (kind == XCB_PROPERTY_NOTIFY && manager_ != XCB_WINDOW_NONE) {
        const auto* const told = reinterpret_cast<const xcb_property_notify_event_t*>(event);
        if (told->window == manager_ && told->atom == property_) later(&XSettings::read);
    }
    return false;
}

} // namespace quillon
