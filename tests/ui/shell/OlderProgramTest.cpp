#include "cli/RemoteProgram.h"
#include "platform/SessionBus.h"
#include "support/Await.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>

namespace quillon::test {

namespace {

/// A program of the first version, which takes a command and one argument.
class OlderProgram : public QDBusVirtualObject {
public:
    std::string asked;

    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }
    /// A method that this does not handle is unknown to the caller.
    bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
        if (call.member() != QStringLiteral("Run") || call.signature() != QStringLiteral("ssh"))
            return false;
        const QVariantList arguments = call.arguments();
        asked = (arguments[0].toString() + QStringLiteral("(") + arguments[1].toString() +
                 QStringLiteral(")"))
                    .toStdString();
        return bus.send(
            call.createReply({1, QStringLiteral("said\n"), QStringLiteral("warned\n")}));
    }
};

} // namespace

TEST(RemoteProgram, IsAlsoUnderstoodByAProgramOfTheVersionBefore) {
    const SessionBus sessionBus;
    // By its address: libdbus takes the session bus for the one that a process used first.
    QDBusConnection bus = QDBusConnection::connectToBus(
        qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("older"));
    OlderProgram older;
    ASSERT_TRUE(bus.registerVirtualObject(QLatin1String{RemoteProgram::objectPath}, &older));
    ASSERT_TRUE(bus.registerService(QLatin1String{RemoteProgram::busName}));

    for (const auto& [words, asked] :
         {std::pair{QStringList{QStringLiteral("status")}, "status()"},
          std::pair{QStringList{QStringLiteral("launch-at-login"), QStringLiteral("on")},
                    "launch-at-login(on)"}}) {
        QProcess quillon;
        quillon.start(QStringLiteral(QUILLON), words);
        ASSERT_TRUE(waitUntil([&] { return quillon.state() == QProcess::NotRunning; }));
        EXPECT_EQ(older.asked, asked);
        EXPECT_EQ(quillon.exitCode(), 1);
        EXPECT_EQ(quillon.readAllStandardOutput(), "said\n");
        EXPECT_EQ(quillon.readAllStandardError(), "warned\n");
    }
    QDBusConnection::disconnectFromBus(QStringLiteral("older"));
}

} // namespace quillon::test
