#include "ui/tray/TrayWatch.h"

#include "platform/linux/X11Connection.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QGuiApplication>

namespace quillon {

namespace {

const QString watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");

} // namespace

TrayWatch::TrayWatch(QDBusConnection bus) : bus_{std::move(bus)} {
    watchBus();
    watchManager();
}

TrayWatch::~TrayWatch() {
    qApp->removeNativeEventFilter(this);
}

void TrayWatch::watchBus() {
    auto* const owner =
        new QDBusServiceWatcher{watcherName, bus_, QDBusServiceWatcher::WatchForOwnerChange, this};
    connect(owner, &QDBusServiceWatcher::serviceOwnerChanged, this, [this] {
        setHosted(false); // whoever comes next knows nothing of icons given to another
        askWatcher();
    });
    for (const char* signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
        bus_.connect(watcherName, watcherPath, watcherName, QLatin1String{signal}, this,
                     SLOT(askWatcher()));
    askWatcher();
}

void TrayWatch::askWatcher() {
    QDBusMessage question = QDBusMessage::createMethodCall(
        watcherName, watcherPath, QStringLiteral("org.freedesktop.DBus.Properties"),
        QStringLiteral("Get"));
    question << watcherName << QStringLiteral("IsStatusNotifierHostRegistered");
    question.setAutoStartService(false);
    auto* const pending = new QDBusPendingCallWatcher{bus_.asyncCall(question), this};
    connect(pending, &QDBusPendingCallWatcher::finished, this, [this, pending] {
        const QDBusPendingReply<QDBusVariant> reply = *pending;
        pending->deleteLater();
        watched_ = !reply.isError();
        setHosted(watched_ && reply.value().variant().toBool());
    });
}

void TrayWatch::setHosted(bool hosted) {
    if (hosted == hosted_) return;
    hosted_ = hosted;
    Q_EMIT changed();
}

void TrayWatch::watchManager() {
    xcb_connection_t* const connection = qtConnection();
    if (!connection) return;
    selection_ = managerSelection(connection, "_NET_SYSTEM_TRAY");
    managerAtom_ = internAtom(connection, "MANAGER");
    coloursAtom_ = internAtom(connection, "_NET_SYSTEM_TRAY_COLORS");
    qApp->installNativeEventFilter(this);
    lookForManager();
}

void TrayWatch::lookForManager() {
    xcb_connection_t* const connection = qtConnection();
    const auto cookie = xcb_get_selection_owner(connection, selection_);
    const XcbPointer<xcb_get_selection_owner_reply_t> reply{
        xcb_get_selection_owner_reply(connection, cookie, nullptr)};
    const xcb_window_t owner = reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
    if (owner == manager_) return;
    manager_ = owner;
    listen();
    Q_EMIT changed();
}

void TrayWatch::listen() const {
    xcb_connection_t* const connection = qtConnection();
    if (!connection || manager_ == XCB_WINDOW_NONE) return;
    const std::uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(connection, manager_, XCB_CW_EVENT_MASK, &events);
    xcb_flush(connection);
}

bool TrayWatch::nativeEventFilter(const QByteArray& type, void* message, qintptr* /*result*/) {
    if (type != "xcb_generic_event_t") return false;
    const auto* const event = static_cast<const xcb_generic_event_t*>(message);
    constexpr std::uint8_t sentFlag = 0x80;
    const auto kind = static_cast<std::uint8_t>(event->response_type & ~sentFlag);
    bool ours = false;
    if (kind == XCB_CLIENT_MESSAGE) {
        const auto* const told = reinterpret_cast<const xcb_client_message_event_t*>(event);
        ours = told->type == managerAtom_ && told->data.data32[1] == selection_;
    } else if (kind == XCB_DESTROY_NOTIFY) {
        const auto* const gone = reinterpret_cast<const xcb_destroy_notify_event_t*>(event);
        ours = manager_ != 0 && gone->window == manager_;
    } else if (kind == XCB_PROPERTY_NOTIFY) {
        const auto* const told = reinterpret_cast<const xcb_property_notify_event_t*>(event);
        if (told->window == manager_ && told->atom == coloursAtom_)
            QMetaObject::invokeMethod(this, &TrayWatch::recoloured, Qt::QueuedConnection);
    }
    // Later: Qt is in the middle of handling it.
    if (ours)
        QMetaObject::invokeMethod(
            this, [this] { lookForManager(); }, Qt::QueuedConnection);
    return false;
}

std::optional<QColor> TrayWatch::foreground() const {
    xcb_connection_t* const connection = qtConnection();
    if (!connection || manager_ == 0) return std::nullopt;
    // Four colours, the first that of text and symbols, each of three cardinals up to 65535.
    const auto cookie =
        xcb_get_property(connection, 0, manager_, coloursAtom_, XCB_ATOM_CARDINAL, 0, 3);
    const XcbPointer<xcb_get_property_reply_t> reply{
        xcb_get_property_reply(connection, cookie, nullptr)};
    if (!reply || reply->format != 32 || reply->value_len < 3) return std::nullopt;
    const auto* const rgb = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return QColor::fromRgba64(static_cast<quint16>(rgb[0]), static_cast<quint16>(rgb[1]),
                              static_cast<quint16>(rgb[2]));
}

} // namespace quillon
