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
    connect(&tray_, &X11Tray::changed, this, &TrayWatch::changed);
    connect(&tray_, &X11Tray::recoloured, this, &TrayWatch::recoloured);
    watchBus();
}

void TrayWatch::watchBus() {
    auto* const owner =
        new QDBusServiceWatcher{watcherName, bus_, QDBusServiceWatcher::WatchForOwnerChange, this};
    connect(owner, &QDBusServiceWatcher::serviceOwnerChanged, this, [this] {
        setHosted(false); // the next watcher knows nothing of icons that were given to this one
        askWatcher();
    });
    for (const char* signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"}) {
        bus_.connect(watcherName, watcherPath, watcherName, QLatin1String{signal}, this,
                     SLOT(askWatcher()));
    }
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
    const bool first = !known();
    hosted_ = hosted;
    Q_EMIT changed();
    if (first) Q_EMIT answered();
}

} // namespace quillon
