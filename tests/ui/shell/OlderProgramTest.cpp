#include "cli/RemoteProgram.h"
#include "support/Await.h"
#include "support/SessionBus.h"

#include <QDBusConnection>
#include <QDBusUnixFileDescriptor>
#include <QProcess>

namespace quillon::test {

namespace {

/// A program of the first version, which knows commands by one argument.
class OlderProgram : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "dev.vostrel.quillon")

public:
    std::string asked;

public Q_SLOTS:
    Q_SCRIPTABLE int Run(const QString& command, const QString& argument,
                         const QDBusUnixFileDescriptor& /*input*/, QString& output,
                         QString& errors) {
        asked = command.toStdString() + "(" + argument.toStdString() + ")";
        output = QStringLiteral("said\n");
        errors = QStringLiteral("warned\n");
        return 1;
    }
};

} // namespace

TEST(RemoteProgram, IsAlsoUnderstoodByAProgramOfTheVersionBefore) {
    const SessionBus sessionBus;
    // By its address: libdbus takes the session bus for the one that a process used first.
    QDBusConnection bus = QDBusConnection::connectToBus(
        qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("older"));
    qRegisterMetaType<QDBusUnixFileDescriptor>();
    OlderProgram older;
    ASSERT_TRUE(bus.registerObject(QLatin1String{RemoteProgram::objectPath}, &older,
                                   QDBusConnection::ExportScriptableContents));
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

#include "OlderProgramTest.moc"
