#include "ui/CommandService.h"

#include "cli/RemoteProgram.h"
#include "core/Core.h"
#include "support/Await.h"
#include "support/RawServer.h"
#include "support/SessionBus.h"
#include "support/TestComputer.h"

#include <QDBusPendingReply>

#include <semaphore>

#include <sys/mman.h>

namespace quillon::test {

namespace {

using Answer = QDBusPendingReply<int, QString, QString>;

QDBusUnixFileDescriptor noInput() {
    QDBusUnixFileDescriptor input;
    input.giveFileDescriptor(::memfd_create("input", MFD_CLOEXEC));
    return input;
}

/// Another process of the session, as the bus sees it.
class Caller {
public:
    /// Of words between blanks.
    Answer run(const char* command) {
        const QStringList words = QString::fromLatin1(command).split(u' ', Qt::SkipEmptyParts);
        return call("RunCommand", {words, QVariant::fromValue(noInput())});
    }
    Answer call(const char* method, const QVariantList& arguments) {
        QDBusMessage message = QDBusMessage::createMethodCall(
            QLatin1String{RemoteProgram::busName}, QLatin1String{RemoteProgram::objectPath},
            QLatin1String{RemoteProgram::interfaceName}, QLatin1String{method});
        message.setArguments(arguments);
        return bus_.asyncCall(message);
    }
    static std::string output(Answer answer) {
        EXPECT_TRUE(waitUntil([&] { return answer.isFinished(); }));
        return answer.isError() ? answer.error().name().toStdString()
                                : answer.argumentAt<1>().toStdString();
    }

private:
    QDBusConnection bus_ =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("caller"));
};

} // namespace

TEST(CommandService, GrantsWhatWasWishedForBeforeItWasReady) {
    TestComputer computer;
    Core core{computer.platform, nullptr};
    std::vector<std::string> granted;
    const DesktopActions actions{.showSettings = [&] { granted.emplace_back("settings"); },
                                 .showPanel = [&] { granted.emplace_back("panel"); },
                                 .send = [&] { granted.emplace_back("send"); }};
    CommandService service{[] {}};
    // As a bus does that has started the program for just this.
    service.wishByName(QStringLiteral("send"), {});
    service.wish(&DesktopActions::showSettings, {});
    EXPECT_THAT(granted, IsEmpty());
    service.serve({computer.platform, core, nullptr}, actions);
    EXPECT_THAT(granted, ElementsAre("send", "settings"));
    service.wishByName(QStringLiteral("settings"), {});
    EXPECT_THAT(granted, ElementsAre("send", "settings", "settings"));
}

TEST(CommandService, AnswersWhoOnlyReadsWhileAnotherCommandIsAtWork) {
    std::binary_semaphore telegramAnswers{0};
    RawServer telegram{[&](RawServer::Connection& connection) {
        connection.request();
        telegramAnswers.acquire();
        connection.reply(200, R"({"ok":true,"result":[]})");
    }};
    const SessionBus bus;
    TestComputer computer{"http://127.0.0.1:" + std::to_string(telegram.port())};
    computer.secrets.values[{botTokenItem().service, botTokenItem().account}] = "1:token";
    Core core{computer.platform, nullptr};
    CommandService service{[] {}};
    ASSERT_EQ(service.publish(), CommandService::Publication::done);

    Caller caller;
    Answer finding = caller.run("find-group");
    Answer early = caller.run("status");
    waitUntil([] { return false; }, 50ms);
    EXPECT_FALSE(early.isFinished()) << "nobody is answered before the program serves";
    service.serve({computer.platform, core, nullptr}, {});
    Answer next = caller.run("launch-at-login on");
    EXPECT_THAT(Caller::output(early), StartsWith("Bot:      connected"));
    EXPECT_EQ(Caller::output(caller.run("history --json")), "[]\n");
    EXPECT_EQ(Caller::output(caller.run("launch-at-login status")), "off\n");
    EXPECT_FALSE(finding.isFinished());
    EXPECT_FALSE(next.isFinished()) << "what changes something keeps its turn";
    telegramAnswers.release();
    EXPECT_EQ(Caller::output(next), "");
    ASSERT_TRUE(finding.isFinished());
    EXPECT_THAT(finding.argumentAt<2>().toStdString(), StartsWith("No group found yet."));

    // As the command lines of older versions call.
    const auto run = [&](const char* command, const char* argument) {
        return Caller::output(
            caller.call("Run", {QString::fromLatin1(command), QString::fromLatin1(argument),
                                QVariant::fromValue(noInput())}));
    };
    EXPECT_EQ(run("launch-at-login", "status"), "on\n");
    EXPECT_THAT(run("status", ""), StartsWith("Bot:"));
    const std::string refused = "org.freedesktop.DBus.Error.InvalidArgs";
    EXPECT_EQ(run("uninstall", "--yes"), refused);
    EXPECT_EQ(Caller::output(caller.run("panel")), refused);
    EXPECT_EQ(Caller::output(caller.run("")), refused);
}

/// The real command line, which hands a command over to this process.
TEST(CommandService, TellsWhoWaitsForTheKeyring) {
    const SessionBus bus;
    TestComputer computer;
    Core core{computer.platform, nullptr};
    CommandService service{[] {}};
    ASSERT_EQ(service.publish(), CommandService::Publication::done);
    service.serve({computer.platform, core, nullptr}, {});
    computer.secrets.late = true;
    QProcess quillon;
    quillon.setReadChannel(QProcess::StandardError);
    quillon.start(QStringLiteral(QUILLON), {QStringLiteral("forget")});
    ASSERT_TRUE(waitUntil([&] { return computer.clock.pending() == 1; }));
    computer.clock.advance(5s);
    EXPECT_TRUE(waitUntil([&] { return quillon.bytesAvailable() > 0; })) << "at once";
    computer.secrets.answer();
    EXPECT_TRUE(waitUntil([&] { return quillon.state() == QProcess::NotRunning; }));
    EXPECT_EQ(quillon.readAllStandardError(),
              "Waiting for your keyring, which may be asking for its password in a window of its "
              "own. Press Ctrl-C to stop.\n");
    EXPECT_EQ(quillon.exitCode(), 0);
}

TEST(RemoteProgram, IsAlsoUnderstoodByAProgramOfTheVersionBefore) {
    const SessionBus bus;
    const BusService older{
        RemoteProgram::busName,
        {{"RunWords", std::nullopt},
         {"RunCommand", std::nullopt},
         {"Run", QVariantList{1, QStringLiteral("said\n"), QStringLiteral("warned\n")}}}};
    // The command, and its argument or none.
    for (const char* argument : {"", "on"}) {
        QStringList words{QLatin1String{*argument ? "launch-at-login" : "status"}};
        if (*argument) words << QLatin1String{argument};
        QProcess quillon;
        quillon.start(QStringLiteral(QUILLON), words);
        EXPECT_TRUE(waitUntil([&] { return quillon.state() == QProcess::NotRunning; }));
        const QVariantList asked = older.calls("Run").constLast().arguments();
        EXPECT_EQ(asked[0], words[0]);
        EXPECT_EQ(asked[1], QLatin1String{argument});
        EXPECT_EQ(quillon.exitCode(), 1);
        EXPECT_EQ(quillon.readAllStandardOutput(), "said\n");
        EXPECT_EQ(quillon.readAllStandardError(), "warned\n");
    }
}

} // namespace quillon::test
