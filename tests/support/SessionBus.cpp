#include "support/SessionBus.h"

#include "support/Await.h"
#include "support/Files.h"

#include <QDBusConnectionInterface>
#include <QDBusPendingCall>

namespace quillon::test {

namespace {

// Without folders of services, so that the bus starts none.
constexpr const char* configuration = R"(<busconfig>
  <type>session</type>
  <listen>unix:tmpdir=/tmp</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>)";

/// A connection of this name to the bus that the environment names at the moment.
QDBusConnection connectToBus(const QString& name) {
    return QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), name);
}

} // namespace

SessionBus::SessionBus() {
    const QString file = folder_.filePath(QStringLiteral("bus.conf"));
    write(file.toStdString(), configuration);
    bus_.start(QStringLiteral("dbus-daemon"),
               {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                QStringLiteral("--config-file=") + file});
    EXPECT_TRUE(waitUntil([&] { return bus_.waitForReadyRead(100) && bus_.canReadLine(); }));
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus_.readLine().trimmed());
}

SessionBus::~SessionBus() {
    for (QProcess* process : {&keyring_, &bus_}) {
        process->kill();
        process->waitForFinished();
    }
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
}

void SessionBus::startKeyring() {
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
        environment.insert(QString::fromLatin1(name), folder_.path());
    keyring_.setProcessEnvironment(environment);
    keyring_.start(QStringLiteral("gnome-keyring-daemon"),
                   {QStringLiteral("--foreground"), QStringLiteral("--unlock"),
                    QStringLiteral("--components=secrets")});
    keyring_.write("password");
    keyring_.closeWriteChannel();
    const QString watcher = QStringLiteral("keyring watcher");
    EXPECT_TRUE(waitUntil([bus = connectToBus(watcher).interface()] {
        return bus->isServiceRegistered(QStringLiteral("org.freedesktop.secrets"));
    }));
    QDBusConnection::disconnectFromBus(watcher);
}

/// Everything below the root, in the service's thread.
class BusService::Objects : public QDBusVirtualObject {
public:
    Objects(Answers answers, std::chrono::milliseconds slowness, const char* interfaces)
        : answers_{std::move(answers)},
          slowness_{slowness},
          interfaces_{interfaces} {}

    [[nodiscard]] QString introspect(const QString& /*path*/) const override {
        return QLatin1String{interfaces_};
    }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        const std::string method = message.member().toStdString();
        if (method == "Introspect") return false;
        message.setDelayedReply(true);
        std::unique_lock lock{mutex_};
        calls_[method] += message;
        const auto answer = answers_.find(method);
        if (answer == answers_.end()) return true;
        const auto arguments = answer->second;
        lock.unlock();
        QThread::msleep(static_cast<unsigned long>(slowness_.count()));
        bus.send(arguments ? message.createReply(*arguments)
                           : message.createErrorReply(QDBusError::UnknownMethod, {}));
        return true;
    }

    void setAnswer(const std::string& method, QVariantList answer) {
        const std::lock_guard lock{mutex_};
        answers_[method] = std::move(answer);
    }

    [[nodiscard]] QList<QDBusMessage> calls(const std::string& method) {
        const std::lock_guard lock{mutex_};
        return calls_[method];
    }

private:
    std::mutex mutex_; ///< guards the next two
    Answers answers_;
    std::map<std::string, QList<QDBusMessage>> calls_;
    std::chrono::milliseconds slowness_;
    const char* interfaces_;
};

BusService::BusService(const char* name, Answers answers, std::chrono::milliseconds slowness,
                       const char* interfaces)
    : name_{QLatin1String{name}},
      bus_{connectToBus(name_)},
      objects_{std::make_unique<Objects>(std::move(answers), slowness, interfaces)} {
    EXPECT_TRUE(
        bus_.registerVirtualObject(QStringLiteral("/"), objects_.get(), QDBusConnection::SubPath));
    objects_->moveToThread(&thread_);
    thread_.start();
    EXPECT_TRUE(bus_.registerService(name_));
}

BusService::~BusService() {
    bus_.unregisterService(name_);
    QMetaObject::invokeMethod(
        objects_.get(),
        [this, home = QThread::currentThread()] {
            bus_.unregisterObject(QStringLiteral("/"));
            objects_->moveToThread(home);
        },
        Qt::BlockingQueuedConnection);
    QDBusConnection::disconnectFromBus(name_);
    thread_.quit();
    thread_.wait();
}

void BusService::setAnswer(const std::string& method, QVariantList answer) {
    objects_->setAnswer(method, std::move(answer));
}

QList<QDBusMessage> BusService::calls(const std::string& method) const {
    return objects_->calls(method);
}

void BusService::sendSignal(const char* path, const char* interface, const char* member,
                            const QVariantList& arguments) const {
    QDBusMessage signal = QDBusMessage::createSignal(QLatin1String{path}, QLatin1String{interface},
                                                     QLatin1String{member});
    signal.setArguments(arguments);
    EXPECT_TRUE(bus_.send(signal));
}

QDBusMessage BusService::call(const QString& service, const char* path, const char* interface,
                              const char* method, const QVariantList& arguments) const {
    QDBusMessage message = QDBusMessage::createMethodCall(
        service, QLatin1String{path}, QLatin1String{interface}, QLatin1String{method});
    message.setArguments(arguments);
    const QDBusPendingCall pending = bus_.asyncCall(message);
    EXPECT_TRUE(waitUntil([&] { return pending.isFinished(); }));
    return pending.reply();
}

} // namespace quillon::test
