#include "ui/tray/TrayWatch.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

namespace quillon {

namespace {

const QString watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");

} // namespace

TrayWatch::TrayWatch(QDBusConnection bus) : bus_{std::move(bus)} {
    connect(&manager_, &X11Manager::changed, this, &TrayWatch::changed);
    connect(&manager_, &X11Manager::propertyChanged, this, &TrayWatch::recoloured);
    watchBus();
}

void TrayWatch::watchBus() {
    auto* const owner =
        new QDBusServiceWatcher{watcherName, bus_, QDBusServiceWatcher::WatchForOwnerChange, this};
    connect(owner, &QDBusServiceWatcher::serviceOwnerChanged, this, [this] {
        setHosted(false); // a new watcher knows nothing of the icons that the last one had
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

std::optional<QColor> TrayWatch::foreground() const {
    // The property is four colours, each of three cardinals up to 65535. The first colour is that
    // of text and symbols.
    const auto reply = manager_.property(XCB_ATOM_CARDINAL, 3);
    if (!reply || reply->format != 32 || reply->value_len < 3) return std::nullopt;
    const auto* const rgb = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return QColor::fromRgba64(static_cast<quint16>(rgb[0]), static_cast<quint16>(rgb[1]),
                              static_cast<quint16>(rgb[2]));
}

} // namespace quillon
