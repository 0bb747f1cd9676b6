#include "platform/SessionBus.h"

#include "support/Await.h"

#include <QFile>

#include <thread>

namespace quillon::test {

namespace {

constexpr const char* keyringName = "org.freedesktop.secrets";

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

/// Asks the bus itself; null when it refuses.
GVariant* askBus(GDBusConnection* bus, const char* method, GVariant* arguments) {
    return g_dbus_connection_call_sync(bus, "org.freedesktop.DBus", "/org/freedesktop/DBus",
                                       "org.freedesktop.DBus", method, arguments, nullptr,
                                       G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr);
}

bool hasOwner(GDBusConnection* bus, const char* name) {
    GVariant* answer = askBus(bus, "NameHasOwner", g_variant_new("(s)", name));
    gboolean owned = FALSE;
    g_variant_get(answer, "(b)", &owned);
    g_variant_unref(answer);
    return owned;
}

GDBusMessage* replyTo(GDBusMessage* call, const std::string& answer) {
    if (answer.empty()) {
        return g_dbus_message_new_method_error_literal(call, "org.freedesktop.DBus.Error.Failed",
                                                       "no");
    }
    GDBusMessage* reply = g_dbus_message_new_method_reply(call);
    g_dbus_message_set_body(reply,
                            g_variant_parse(nullptr, answer.c_str(), nullptr, nullptr, nullptr));
    return reply;
}

} // namespace

SessionBus::SessionBus() {
    const QString file = folder_.filePath(QStringLiteral("bus.conf"));
    QFile config{file};
    EXPECT_TRUE(config.open(QIODevice::WriteOnly) && config.write(configuration) > 0);
    config.close();
    bus_.start(QStringLiteral("dbus-daemon"),
               {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                QStringLiteral("--config-file=") + file});
    EXPECT_TRUE(waitUntil([&] { return bus_.waitForReadyRead(100) && bus_.canReadLine(); }));
    address_ = bus_.readLine().trimmed().toStdString();
    qputenv("DBUS_SESSION_BUS_ADDRESS", QByteArray::fromStdString(address_));
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
    const auto connection = connect();
    EXPECT_TRUE(waitUntil([&] { return hasOwner(connection.get(), keyringName); }));
}

QByteArray SessionBus::secretTool(const QStringList& arguments, const QByteArray& input) {
    QProcess tool;
    tool.start(QStringLiteral("secret-tool"), arguments);
    tool.write(input);
    tool.closeWriteChannel();
    EXPECT_TRUE(tool.waitForFinished());
    return tool.readAllStandardOutput() + tool.readAllStandardError();
}

GlibPointer<GDBusConnection> SessionBus::connect() const {
    constexpr auto flags =
        static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                          G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    return GlibPointer<GDBusConnection>{
        g_dbus_connection_new_for_address_sync(address_.c_str(), flags, nullptr, nullptr, nullptr)};
}

ScriptedSecretService::ScriptedSecretService(const SessionBus& bus, Answers answers,
                                             std::chrono::milliseconds slowness)
    : connection_{bus.connect()},
      answers_{std::move(answers)},
      slowness_{slowness} {
    const auto filter = [](GDBusConnection*, GDBusMessage* message, gboolean incoming,
                           gpointer self) {
        const bool call =
            incoming && g_dbus_message_get_message_type(message) == G_DBUS_MESSAGE_TYPE_METHOD_CALL;
        return call ? static_cast<ScriptedSecretService*>(self)->take(message) : message;
    };
    filter_ = g_dbus_connection_add_filter(connection_.get(), filter, this, nullptr);
    GVariant* answer =
        askBus(connection_.get(), "RequestName", g_variant_new("(su)", keyringName, 0U));
    EXPECT_TRUE(answer);
    g_variant_unref(answer);
}

ScriptedSecretService::~ScriptedSecretService() {
    g_dbus_connection_close_sync(connection_.get(), nullptr, nullptr);
    g_dbus_connection_remove_filter(connection_.get(), filter_);
}

bool ScriptedSecretService::wasAsked(const std::string& method) const {
    const std::lock_guard lock{mutex_};
    return asked_.contains(method);
}

GDBusMessage* ScriptedSecretService::take(GDBusMessage* message) {
    const std::string method = g_dbus_message_get_member(message);
    {
        const std::lock_guard lock{mutex_};
        asked_.insert(method);
    }
    if (const auto found = answers_.find(method); found != answers_.end()) {
        std::this_thread::sleep_for(slowness_);
        GDBusMessage* reply = replyTo(message, found->second);
        g_dbus_connection_send_message(connection_.get(), reply, G_DBUS_SEND_MESSAGE_FLAGS_NONE,
                                       nullptr, nullptr);
        g_object_unref(reply);
    }
    g_object_unref(message);
    return nullptr;
}

} // namespace quillon::test
