// What is sent without being copied: files by their names, what comes by a pipe, what other
// programs ask for.
#include "EndToEnd.h"

#include <QDBusMessage>
#include <QXmlStreamReader>

#include <algorithm>

namespace quillon::test {

constexpr const char* nothing = "Standard input holds nothing to send.\n";
/// A PNG of one pixel, in words of the shell.
constexpr const char* pixel =
    "printf %s iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mNkYPhfDwAChwGA60e6kgAAAABJ"
    "RU5ErkJggg== | base64 -d";

struct Anywhere : EndToEnd {
    void SetUp() override {
        EndToEnd::SetUp();
        setUp();
    }

    void TearDown() override {
        // Qt does not remove files whose names it cannot decode.
        std::filesystem::remove_all(documents.path().toStdString());
        EndToEnd::TearDown();
    }

    /// Starts the words in a shell, in the folder of the documents, where "q" is the program.
    [[nodiscard]] std::unique_ptr<QProcess> startShell(const std::string& words) const {
        auto shell = std::make_unique<QProcess>();
        shell->setProcessEnvironment(quillon.environment);
        shell->setWorkingDirectory(documents.path());
        shell->setStandardInputFile(QProcess::nullDevice());
        shell->start(QStringLiteral("bash"),
                     {QStringLiteral("-c"),
                      QString::fromStdString("q() { \"$0\" \"$@\"; }\n" + words),
                      QString::fromStdString(quillon.executable)});
        return shell;
    }

    void expectShell(const std::string& words, int code, const std::string& out,
                     const std::string& err) const {
        const auto shell = startShell(words);
        const Finished run = Program::finish(*shell);
        EXPECT_EQ(run.code, code) << words;
        EXPECT_EQ(run.out, out) << words;
        EXPECT_EQ(run.err, err) << words;
    }

    void sendFilesByTheirNames() {
        clipboard.copyText("copied");
        std::filesystem::create_directories(
            documents.filePath(QStringLiteral("folder")).toStdString());
        for (const char* const name : {"plan.pdf", "-", "-x", "a\nb", "\xff.MOV", "folder/c d.png"})
            static_cast<void>(file(name));
        expectShell(
            "q send plan.pdf ./- folder/../$'a\\nb' -- -x $'\\xff.MOV' 'folder/c d.png'", 0,
            "sent\t📎 Files\tplan.pdf\nsent\t📎 Files\t-\nsent\t📎 Files\ta\uFFFDb\n"
            "sent\t📎 Files\t-x\nsent\t🎬 Videos\t\uFFFD.MOV\nsent\t📸 Images\tc d.png\n",
            "");
        expectShell("cd folder && q send --topic videos ../plan.pdf", 0,
                    "sent\t🎬 Videos\tplan.pdf\n", "");
        expectShell("mkfifo -m 600 pipe; q send folder/ nowhere.txt pipe plan.pdf/x; rm pipe", 0,
                    "failed\t📎 Files\tfolder\nfailed\t📎 Files\tnowhere.txt\n"
                    "failed\t📎 Files\tpipe\nfailed\t📎 Files\tx\n",
                    "Folders can't be sent yet: folder\nCouldn't read nowhere.txt\n"
                    "Couldn't read pipe\nCouldn't read x\n");
        expectShell("mkdir gone && cd gone && rmdir ../gone && q send plan.pdf", 1,
                    "failed\t📎 Files\tplan.pdf\n", "Couldn't read plan.pdf\n");
        expectShell("q \"$PWD/plan.pdf\" \"$PWD/-x\"", 0,
                    "sent\t📎 Files\tplan.pdf\nsent\t📎 Files\t-x\n", "");
        expectShell("q history 1 | cut -f 2-", 0, "sent\t📎 Files\t-x\n", "");
        expectShell("unset DISPLAY WAYLAND_DISPLAY; q send plan.pdf", 0,
                    "sent\t📎 Files\tplan.pdf\n", "");
        EXPECT_THAT(messages("📝 Notes & text"), SizeIs(1)) << "only the setup's own";
        for (const char* const wrong :
             {"send --topic", "send --topic=all plan.pdf", "send -x", "send --name a plan.pdf",
              "send --name=", "send plan.pdf -", "send ''"})
            expectShell("q " + std::string{wrong} + " 2>/dev/null", 2, "", "");
    }

    void sendStandardInput() {
        clipboard.copyText("copied");
        const auto notes = [this] { return messages("📝 Notes & text"); };
        const std::size_t before = notes().size();
        expectShell("printf 'a <b>\\n\\n' | q send", 0, "sent\t📝 Notes & text\ta <b>\n", "");
        expectShell(std::string{pixel} + " >p; q send - <p; q send --name p.mov - <p", 0,
                    "sent\t📸 Images\tImage · 1×1\nsent\t🎬 Videos\tp.mov\n", "");
        expectShell("head -c 9 /dev/zero | q send --topic=images --name $'x/\\xff\\n'", 0,
                    "sent\t📸 Images\t\uFFFD\uFFFD\n", "");

        const std::string neither = "Standard input is neither text nor a PNG picture. Give it a "
                                    "file name with --name.\n";
        const std::string over = " is over 50 MB (Telegram's limit for bots)\n";
        for (const char* const empty : {"true | q send", "q send - <&-",
                                        "q send --name a </dev/null", "printf ' \\n' | q send"})
            expectShell(empty, 1, "", nothing);
        for (const char* const binary :
             {"head -c 9 /dev/zero | q send", "printf 'a\\xff' | q send", "head -c 40 p | q send"})
            expectShell(binary, 1, "", neither);
        expectShell("q send - <.", 1, "", "Standard input could not be read.\n");
        expectShell("head -c 60000000 /dev/zero | q send --name big.bin", 1,
                    "failed\t📎 Files\tbig.bin\n", "big.bin" + over);
        expectShell("yes | q send", 1, "", "Standard input" + over);

        EXPECT_THAT(notes(), SizeIs(before + 1)) << "and nothing instead of what was given";
        expectShell("q send </dev/null; q send <&-", 0,
                    "sent\t📝 Notes & text\tcopied\nsent\t📝 Notes & text\tcopied\n", "");
        expectShell("python3 -c 'import socket, subprocess, sys\n"
                    "subprocess.run([sys.argv[1], \"send\"], stdin=socket.socketpair()[0])' \"$0\"",
                    0, "sent\t📝 Notes & text\tcopied\n", "");
        QProcess launched; // with a pipe that nobody uses
        launched.setProcessEnvironment(quillon.environment);
        launched.start(QString::fromStdString(quillon.executable), words("send"));
        EXPECT_EQ(Program::finish(launched).out, "sent\t📝 Notes & text\tcopied\n");
        expectShell("{ sleep 1.5; echo late; } | q send", 0, "sent\t📝 Notes & text\tlate\n", "");
        EXPECT_THAT(notes(), SizeIs(before + 6));
    }

    void loseAFileMeanwhile() {
        static_cast<void>(file("first", std::string(2'000'000, 'x')));
        static_cast<void>(file("second"));
        phone.clearRequests();
        phone.failNext(fault(sandbox::FaultKind::delay, 1s));
        const auto sending = startShell("q send first second");
        ASSERT_TRUE(waitUntil([this] { return !phone.requests().empty(); }));
        std::filesystem::remove(documents.filePath(QStringLiteral("second")).toStdString());
        const Finished run = Program::finish(*sending);
        EXPECT_EQ(run.code, 1);
        EXPECT_EQ(run.out, "sent\t📎 Files\tfirst\nfailed\t📎 Files\tsecond\n");
        EXPECT_EQ(run.err, "Couldn't read second\n");
    }

    void sendAll() {
        sendFilesByTheirNames();
        sendStandardInput();
        loseAFileMeanwhile();
    }
};

TEST_F(Anywhere, SendsFilesAndStandardInput) {
    sendAll();
}

TEST_F(Anywhere, DoesTheSameInTheProgramThatRuns) {
    const auto program = startProgram();
    sendAll();

    // Input that never ends is waited for by nobody but its own command.
    QProcess endless;
    endless.setProcessEnvironment(quillon.environment);
    endless.start(QString::fromStdString(quillon.executable), words("send -"));
    EXPECT_FALSE(endless.waitForFinished(500));
    expectShell("q send plan.pdf", 0, "sent\t📎 Files\tplan.pdf\n", "");
    endless.terminate();
    EXPECT_EQ(Program::finish(endless).code, 128 + SIGTERM);
    endProgram(*program);
}

/// The methods and signals of the program's interface, each with the types that go in and come out.
std::vector<std::string> members(const QString& xml) {
    struct Member {
        std::string name, in, out;
    };
    std::vector<Member> found;
    bool inside = false;
    for (QXmlStreamReader reader{xml}; !reader.atEnd(); reader.readNext()) {
        if (!reader.isStartElement()) continue;
        const auto attribute = [&](const char* name) {
            return reader.attributes().value(QLatin1String{name}).toString().toStdString();
        };
        if (reader.name() == u"interface") inside = attribute("name") == "dev.vostrel.quillon";
        if (!inside) continue;
        if (reader.name() == u"method" || reader.name() == u"signal")
            found.push_back(
                {reader.name().toString().toStdString() + ' ' + attribute("name"), {}, {}});
        if (reader.name() == u"arg")
            (attribute("direction") == "in" ? found.back().in : found.back().out) +=
                ' ' + attribute("type");
    }
    std::vector<std::string> members;
    for (const Member& member : found)
        members.push_back(member.name + " in" + member.in + " out" + member.out);
    std::ranges::sort(members);
    return members;
}

QDBusMessage call(const char* interface, const char* method, const QVariantList& arguments = {}) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("dev.vostrel.quillon"), QStringLiteral("/dev/vostrel/quillon"),
        QLatin1String{interface}, QLatin1String{method});
    message.setArguments(arguments);
    return QDBusConnection::sessionBus().call(message);
}

QDBusMessage callSend(const QStringList& files, const char* text, const QVariantMap& options = {}) {
    return call("dev.vostrel.quillon", "Send", {files, QString::fromUtf8(text), options});
}

TEST_F(Anywhere, TakesFilesAndTextsFromOtherPrograms) {
    const auto program = startProgram();
    const QString live =
        call("org.freedesktop.DBus.Introspectable", "Introspect").arguments().value(0).toString();
    const std::string described = content(QUILLON_SOURCE "/packaging/dev.vostrel.quillon.xml");
    EXPECT_EQ(members(live), members(QString::fromStdString(described)));
    EXPECT_EQ(call("dev.vostrel.quillon", "Status").arguments().value(0).toString().toStdString() +
                  '\n',
              quillon.run({"status", "--json"}).out);

    const auto monitor = startShell("exec gdbus monitor --session --dest dev.vostrel.quillon");
    ASSERT_TRUE(waitUntil([&] { return monitor->bytesAvailable() > 0; }));
    for (const char* const name : {"plan.pdf", "\xff.MOV"})
        static_cast<void>(file(name));
    const std::string scripts = QUILLON_SOURCE "/docs/scripts/";
    expectShell("/usr/bin/python3 " + scripts + "send.py plan.pdf $'\\xff.MOV' nowhere", 0,
                "plan.pdf: sent to 📎 Files\n\uFFFD.MOV: sent to 🎬 Videos\n"
                "nowhere: Couldn't read nowhere\n",
                "");
    expectShell("sh " + scripts + "send.sh \"It's done\" | grep -c \"It's done\"", 0, "1\n", "");
    EXPECT_EQ(messages("📎 Files").back()["pre"], Json::array({"It's done"}));
    EXPECT_TRUE(waitUntil([&] {
        const QByteArray told = monitor->peek(100'000);
        return told.contains("SendStarted (3,)") && told.contains("SendStarted (1,)") &&
               told.contains("Couldn't read nowhere");
    })) << monitor->peek(100'000).toStdString();
    monitor->terminate();
    static_cast<void>(Program::finish(*monitor));

    call("org.freedesktop.Application", "Open",
         {QStringList{QString::fromStdString(file("opened.txt"))}, QVariantMap{}});
    EXPECT_TRUE(waitUntil([this] { return messages("📎 Files").size() == 3; }));

    const QString invalid = QStringLiteral("org.freedesktop.DBus.Error.InvalidArgs");
    EXPECT_EQ(callSend({}, " \n").errorName(), invalid) << "and not the clipboard";
    EXPECT_EQ(callSend({QStringLiteral("plan.pdf")}, "").errorName(), invalid);
    EXPECT_EQ(callSend({QStringLiteral("https://a/b")}, "c").errorName(), invalid);
    EXPECT_EQ(callSend({}, "a", {{QStringLiteral("topic"), QStringLiteral("all")}}).errorName(),
              invalid);
    EXPECT_EQ(callSend({}, "a", {{QStringLiteral("later"), true}}).errorName(), invalid);
    phone.clearRequests();
    phone.failNext(fault(sandbox::FaultKind::delay, 1s));
    const auto busy = startShell("q send plan.pdf");
    ASSERT_TRUE(waitUntil([this] { return !phone.requests().empty(); }));
    EXPECT_EQ(callSend({}, "a").errorMessage(), QStringLiteral("Another send is still running."));
    static_cast<void>(Program::finish(*busy));
    EXPECT_EQ(quillon.run({"forget"}).code, 0);
    const QDBusMessage refused = callSend({}, "a");
    EXPECT_EQ(refused.errorName(), QStringLiteral("dev.vostrel.quillon.Error.NotSent"));
    EXPECT_EQ(refused.errorMessage(), QStringLiteral("Finish setting up Quillon first"));
    endProgram(*program);
}

TEST_F(Anywhere, TellsScriptsWhatHappensAndWhenItIsReady) {
    expectShell("q history --follow", 1, "", "There is no Quillon running to follow.\n");
    const auto program = startProgram();
    const auto following = startShell("q history --follow");
    const auto first = startShell("q history --follow | head -n 1");
    // Nothing tells that a follower has begun: send until both have seen something.
    ASSERT_TRUE(waitUntil([&] {
        static_cast<void>(Program::finish(*startShell("q send --name a - <<<x")));
        return following->bytesAvailable() > 0 && first->bytesAvailable() > 0;
    }));
    static_cast<void>(Program::finish(*startShell("q send nowhere")));
    EXPECT_EQ(Program::finish(*first).code, 0);
    endProgram(*program);
    const Finished followed = Program::finish(*following);
    EXPECT_EQ(followed.code, 0) << "it ends with the program: " << followed.err;
    EXPECT_THAT(followed.out, HasSubstr("\tsent\t📎 Files\ta\n"));
    EXPECT_THAT(followed.out, EndsWith("\tfailed\t📎 Files\tnowhere\tCouldn't read nowhere\n"));

    expectShell("q status --wait-ready", 0, "", "");
    ASSERT_EQ(quillon.run({"forget"}).code, 0);
    const auto again = startProgram();
    const auto waiting = startShell("q status --wait-ready");
    EXPECT_FALSE(waiting->waitForFinished(500));
    setUp();
    EXPECT_EQ(Program::finish(*waiting).code, 0);
    endProgram(*again);
}

} // namespace quillon::test
