#include "platform/linux/x11/X11Events.h"

#include "platform/linux/x11/X11Connection.h"

#include <QGuiApplication>

#include <xcb/xfixes.h>

namespace quillon {

X11Events* X11Events::ofApplication() {
    if (!qtConnection()) return nullptr;
    auto* const present = qApp->findChild<X11Events*>({}, Qt::FindDirectChildrenOnly);
    return present ? present : new X11Events{qApp};
}

X11Events::X11Events(QObject* application)
    : QObject{application},
      compositingManager_{managerSelection(qtConnection(), "_NET_WM_CM")} {
    // Qt has already asked the server for a version of XFixes, without which it refuses other
    // requests.
    const auto* const xfixes = xcb_get_extension_data(qtConnection(), &xcb_xfixes_id);
    if (xfixes && xfixes->present) firstXfixesEvent_ = xfixes->first_event;
    qApp->installNativeEventFilter(this);
}

void X11Events::followOwner(std::uint32_t selection) {
    if (firstXfixesEvent_ == 0 || !followed_.insert(selection).second) return;
    xcb_connection_t* const connection = qtConnection();
    selectOwnerEvents(connection, rootWindow(connection), selection);
    xcb_flush(connection);
}

bool X11Events::nativeEventFilter(const QByteArray& type, void* message, qintptr* /*result*/) {
    if (type != "xcb_generic_event_t") return false;
    const auto* const event = static_cast<const xcb_generic_event_t*>(message);
    const int kind = event->response_type & eventTypeMask;
    if (kind == XCB_PROPERTY_NOTIFY) {
        const auto* const change = reinterpret_cast<const xcb_property_notify_event_t*>(event);
        Q_EMIT propertyChanged(change->window, change->atom);
        return false;
    }
    if (firstXfixesEvent_ == 0 || kind != firstXfixesEvent_ + XCB_XFIXES_SELECTION_NOTIFY)
        return false;
    const auto* const change = reinterpret_cast<const xcb_xfixes_selection_notify_event_t*>(event);
    if (!followed_.contains(change->selection)) return false;
    Q_EMIT ownerChanged(change->selection, change->owner);
    // Qt 6.4 takes the owner of any selection for the compositing manager.
    return change->selection != compositingManager_;
}

} // namespace quillon
