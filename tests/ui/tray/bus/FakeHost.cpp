#include "FakeHost.h"

#include "support/Await.h"

#include <QDBusPendingCall>

namespace quillon::test {

namespace {

const QString connectionName = QStringLiteral("host");
const QString watcherName = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");

} // namespace

FakeHost::FakeHost(bool hosted)
    : bus_{QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName)} {
    watcher_.setHosted(hosted);
    EXPECT_TRUE(
        bus_.registerObject(watcherPath, &watcher_, QDBusConnection::ExportScriptableContents));
    watcher_.moveToThread(&thread_);
    thread_.start();
    EXPECT_TRUE(bus_.registerService(watcherName));
}

FakeHost::~FakeHost() {
    bus_.unregisterService(watcherName);
    QMetaObject::invokeMethod(
        &watcher_,
        [this, home = QThread::currentThread()] {
            bus_.unregisterObject(watcherPath);
            watcher_.moveToThread(home);
        },
        Qt::BlockingQueuedConnection);
    QDBusConnection::disconnectFromBus(connectionName);
    thread_.quit();
    thread_.wait();
}

void FakeHost::registerHost() {
    QMetaObject::invokeMethod(&watcher_, [this] {
        watcher_.setHosted(true);
        Q_EMIT watcher_.StatusNotifierHostRegistered();
    });
}

QDBusMessage FakeHost::call(const QString& path, const QString& interface, const QString& method,
                            const QVariantList& arguments) {
    QDBusMessage message =
        QDBusMessage::createMethodCall(items().constLast(), path, interface, method);
    message.setArguments(arguments);
    const QDBusPendingCall pending = bus_.asyncCall(message);
    EXPECT_TRUE(waitUntil([&] { return pending.isFinished(); }));
    return pending.reply();
}

} // namespace quillon::test
