#include "platform/linux/x11/X11Manager.h"

#include <QGuiApplication>

namespace quillon {

namespace {

constexpr std::uint8_t sentFlag = 0x80;

} // namespace

X11Manager::X11Manager(std::string_view selection, std::string_view property) {
    xcb_connection_t* const connection = qtConnection();
    if (!connection) return;
    selection_ = managerSelection(connection, selection);
    property_ = internAtom(connection, property);
    coming_ = internAtom(connection, "MANAGER");
    qApp->installNativeEventFilter(this);
    look();
}

X11Manager::~X11Manager() {
    if (qApp) qApp->removeNativeEventFilter(this);
}

XcbPointer<xcb_get_property_reply_t> X11Manager::property(xcb_atom_t type,
                                                          std::uint32_t length) const {
    xcb_connection_t* const connection = qtConnection();
    if (!connection || !present()) return nullptr;
    const auto cookie = xcb_get_property(connection, 0, window_, property_, type, 0, length);
    return XcbPointer<xcb_get_property_reply_t>{
        xcb_get_property_reply(connection, cookie, nullptr)};
}

void X11Manager::look() {
    xcb_connection_t* const connection = qtConnection();
    const auto cookie = xcb_get_selection_owner(connection, selection_);
    const XcbPointer<xcb_get_selection_owner_reply_t> reply{
        xcb_get_selection_owner_reply(connection, cookie, nullptr)};
    const xcb_window_t owner = reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
    if (owner == window_) return;
    window_ = owner;
    listen();
    Q_EMIT changed();
}

void X11Manager::listen() const {
    xcb_connection_t* const connection = qtConnection();
    if (!connection || !present()) return;
    const std::uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(connection, window_, XCB_CW_EVENT_MASK, &events);
    xcb_flush(connection);
}

bool X11Manager::nativeEventFilter(const QByteArray& type, void* message, qintptr* /*result*/) {
    if (type != "xcb_generic_event_t") return false;
    const auto* const event = static_cast<const xcb_generic_event_t*>(message);
    const auto kind = static_cast<std::uint8_t>(event->response_type & ~sentFlag);
    bool mayBeAnother = false;
    bool isProperty = false;
    if (kind == XCB_CLIENT_MESSAGE) {
        const auto* const told = reinterpret_cast<const xcb_client_message_event_t*>(event);
        mayBeAnother = told->type == coming_ && told->data.data32[1] == selection_;
    } else if (kind == XCB_DESTROY_NOTIFY && present()) {
        mayBeAnother =
            reinterpret_cast<const xcb_destroy_notify_event_t*>(event)->window == window_;
    } else if (kind == XCB_PROPERTY_NOTIFY && present()) {
        const auto* const told = reinterpret_cast<const xcb_property_notify_event_t*>(event);
        isProperty = told->window == window_ && told->atom == property_;
    }
    // Later: Qt is in the middle of handling it.
    if (mayBeAnother) QMetaObject::invokeMethod(this, &X11Manager::look, Qt::QueuedConnection);
    if (isProperty)
        QMetaObject::invokeMethod(this, &X11Manager::propertyChanged, Qt::QueuedConnection);
    return false;
}

} // namespace quillon
