#include "platform/linux/x11/X11ManagerSelection.h"

#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/X11Events.h"

namespace quillon {

namespace {

xcb_window_t ownerOf(xcb_connection_t* connection, xcb_atom_t selection) {
    const auto cookie = xcb_get_selection_owner(connection, selection);
    const XcbPointer<xcb_get_selection_owner_reply_t> reply{
        xcb_get_selection_owner_reply(connection, cookie, nullptr)};
    return reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
}

} // namespace

X11ManagerSelection::X11ManagerSelection(std::string_view name, std::string_view property) {
    X11Events* const events = X11Events::ofApplication();
    if (!events) return;
    xcb_connection_t* const connection = qtConnection();
    selection_ = managerSelection(connection, name);
    if (!property.empty()) property_ = internAtom(connection, property);
    // Both signals come while Qt handles an event, so what follows from them waits for its turn.
    const auto onOwner = [this](std::uint32_t selection, std::uint32_t window) {
        if (selection == selection_) setOwner(window);
    };
    const auto onProperty = [this](std::uint32_t window, std::uint32_t changed) {
        if (window != window_ || changed != property_) return;
        QMetaObject::invokeMethod(this, &X11ManagerSelection::propertyChanged,
                                  Qt::QueuedConnection);
    };
    connect(events, &X11Events::ownerChanged, this, onOwner, Qt::QueuedConnection);
    if (property_) connect(events, &X11Events::propertyChanged, this, onProperty);
    events->followOwner(selection_);
    setOwner(ownerOf(connection, selection_));
}

X11ManagerSelection::Property X11ManagerSelection::property(std::uint32_t length) const {
    xcb_connection_t* const connection = qtConnection();
    if (!connection || !isOwned()) return {};
    const auto cookie =
        xcb_get_property(connection, 0, window_, property_, XCB_GET_PROPERTY_TYPE_ANY, 0, length);
    const XcbPointer<xcb_get_property_reply_t> reply{
        xcb_get_property_reply(connection, cookie, nullptr)};
    if (!reply) return {};
    return {.type = reply->type,
            .format = reply->format,
            .bytes = {static_cast<const char*>(xcb_get_property_value(reply.get())),
                      xcb_get_property_value_length(reply.get())}};
}

void X11ManagerSelection::setOwner(std::uint32_t window) {
    if (window == window_) return;
    window_ = window;
    listen();
    Q_EMIT ownerChanged();
}

void X11ManagerSelection::listen() const {
    xcb_connection_t* const connection = qtConnection();
    if (!connection || !isOwned() || !property_) return;
    // Qt follows the end of the system tray's window on the same connection, which has one mask.
    const std::uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(connection, window_, XCB_CW_EVENT_MASK, &events);
    xcb_flush(connection);
}

} // namespace quillon
