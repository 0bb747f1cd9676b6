#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <chrono>
#include <map>
#include <mutex>
#include <optional>
#include <string>

namespace quillon::test {

/// A session bus for one test, on which nothing is started by itself. The environment points to it
/// while it lives, and to no bus at all afterwards.
class SessionBus {
public:
    SessionBus();
    SessionBus(const SessionBus&) = delete;
    SessionBus& operator=(const SessionBus&) = delete;
    ~SessionBus();

    /// Starts the real keyring, empty and unlocked.
    void startKeyring();

private:
    QTemporaryDir folder_;
    QProcess bus_;
    QProcess keyring_;
};

/// A program on the bus that the environment names, which answers the methods of all its objects
/// from a table. It has a thread and a connection of its own, since who calls it may wait for the
/// answer without turning the event loop. Gone from the bus with the object.
class BusService {
public:
    /// From method names to the arguments of the answers, or none where there is no such method;
    /// whoever calls another one waits for ever.
    using Answers = std::map<std::string, std::optional<QVariantList>>;

    /// Answers are as late as `slowness`; `interfaces` is what it tells who introspects it.
    BusService(const char* name, Answers answers, std::chrono::milliseconds slowness = {},
               const char* interfaces = "");
    BusService(const BusService&) = delete;
    BusService& operator=(const BusService&) = delete;
    ~BusService();

    void setAnswer(const std::string& method, QVariantList answer);
    /// The calls of the method, in order.
    [[nodiscard]] QList<QDBusMessage> calls(const std::string& method) const;
    void sendSignal(const char* path, const char* interface, const char* member,
                    const QVariantList& arguments = {}) const;
    /// Calls a method of somebody else, and turns the event loop until the answer is there.
    [[nodiscard]] QDBusMessage call(const QString& service, const char* path, const char* interface,
                                    const char* method, const QVariantList& arguments = {}) const;

private:
    class Objects;

    QString name_;
    QDBusConnection bus_;
    std::unique_ptr<Objects> objects_;
    QThread thread_;
};

} // namespace quillon::test
