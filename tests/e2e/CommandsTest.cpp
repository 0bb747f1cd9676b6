// What the commands print and leave, for whoever types them and for scripts.
#include "EndToEnd.h"

namespace quillon::test {

constexpr const char* notSetUp = "Bot:      not connected\n"
                                 "Group:    not found yet\n"
                                 "Topic:    📝 Notes & text (not created yet)\n"
                                 "Topic:    📸 Images (not created yet)\n"
                                 "Topic:    📎 Files (not created yet)\n"
                                 "Topic:    🎬 Videos (not created yet)\n"
                                 "Shortcut: Ctrl+Alt+V\n"
                                 "Ready:    no\n";

struct Commands : EndToEnd {
    void expectRun(const std::vector<std::string>& arguments, int code, const std::string& out,
                   const std::string& err, const std::string& input = {}) {
        const Finished run = quillon.run(arguments, input);
        EXPECT_EQ(run.code, code) << arguments.front();
        EXPECT_EQ(run.out, out) << arguments.front();
        EXPECT_EQ(run.err, err) << arguments.front();
    }

    void goFromConnectingToForgetting() {
        expectRun({"status"}, 0, notSetUp, "");
        expectRun({"find-group"}, 1, "", "Connect your bot first.\n");
        expectRun({"create-topics"}, 1, "", "Find your group first.\n");
        expectRun({"send"}, 1, "", "Finish setting up Quillon first\n");

        expectRun({"connect"}, 0, "Connected to quillon_demo_bot\n", "",
                  std::string{token} + "\nmore");
        phone.userSays(group, "hi");
        expectRun({"find-group"}, 0, "Found “Family”\n", "");
        expectRun({"create-topics"}, 0, "📝 Notes & text\n📸 Images\n📎 Files\n🎬 Videos\n",
                  "");
        const Json status = Json::parse(quillon.run({"status", "--json"}).out);
        EXPECT_EQ(status["ready"], true);
        EXPECT_EQ(status["chatId"], group);
        expectRun({"send"}, 1, "", "The clipboard is empty\n");

        clipboard.copyText("first <line>\nsecond & last");
        expectRun({"send"}, 0, "sent\t📝 Notes & text\tfirst <line>\n", "");
        EXPECT_EQ(messages("📝 Notes & text").back()["pre"],
                  Json::array({"first <line>\nsecond & last"}));
        clipboard.clear();
        const Finished history = quillon.run({"history"});
        EXPECT_THAT(history.out, MatchesRegex("20..-..-.. ..:..:..\tsent\t📝 Notes & text\t"
                                              "first <line>\n"));
        expectRun({"undo"}, 0, "Took back the message\n", "");
        EXPECT_EQ(messages("📝 Notes & text").back()["pre"], Json::array()) << "the welcome";
        expectRun({"undo"}, 1, "", "There is nothing to take back.\n");
        const Finished undone = quillon.run({"history"});
        EXPECT_THAT(undone.out, HasSubstr("\tundone\t📝 Notes & text\tfirst <line>\n"));
        expectRun({"rename-topics"}, 0, "", "");
        expectRun({"forget"}, 0, "", "");
        expectRun({"status"}, 0, notSetUp, "");
        expectRun({"history"}, 0, undone.out, "");
    }
};

TEST_F(Commands, AreUnderstoodOrExplained) {
    const Finished help = quillon.run({"--help"});
    EXPECT_THAT(help.out, HasSubstr("Usage: quillon [COMMAND]\n"));
    expectRun({"--help"}, 0, help.out, "");
    expectRun({"sned"}, 2, "", help.out);
    EXPECT_THAT(quillon.run({"--version"}).out, MatchesRegex("quillon [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST_F(Commands, GoFromConnectingToForgetting) {
    goFromConnectingToForgetting();
}

TEST_F(Commands, DoTheSameInTheProgramThatRuns) {
    const auto program = startProgram();
    EXPECT_EQ(quillon.run({}).code, 0) << "one is enough, which comes to the front";
    // Each would wait for the data folder, and then fail, if it were to do its work itself.
    goFromConnectingToForgetting();
    EXPECT_THAT(quillon.processes(), SizeIs(1)) << "no other shows the banner";
    endProgram(*program);
    EXPECT_THAT(quillon.run({"history"}).out, HasSubstr("\tfirst <line>\n")) << "what it did stays";
}

TEST_F(Commands, FailWhenWhatTheyPrintCannotBeWritten) {
    const auto expectFailure = [this](const QString& command) {
        QProcess shell;
        shell.setProcessEnvironment(quillon.environment);
        shell.start(QStringLiteral("sh"),
                    {QStringLiteral("-c"), QStringLiteral("\"$0\" %1 > /dev/full").arg(command),
                     QString::fromStdString(quillon.executable)});
        const Finished run = Program::finish(shell);
        EXPECT_EQ(run.code, 1) << command.toStdString();
        EXPECT_EQ(run.err, "The output could not be written.\n");
    };
    expectFailure(QStringLiteral("--help"));
    expectFailure(QStringLiteral("status"));
    const auto program = startProgram();
    expectFailure(QStringLiteral("status"));
    setUp();
    clipboard.copyText("a");
    expectFailure(QStringLiteral("send"));
    endProgram(*program);
    clipboard.copyText("a");
    expectFailure(QStringLiteral("send"));
}

TEST_F(Commands, FollowWhatIsWrittenIntoTheSettings) {
    setUp();
    const auto program = startProgram();
    const std::string settings = data.path().toStdString() + "/Quillon/config.json";
    std::string text = content(settings);
    const std::string name = "Notes & text";
    text.replace(text.find(name), name.size(), "Scraps");
    write(settings, text);
    EXPECT_TRUE(waitUntil(
        [this] { return quillon.run({"status"}).out.find("📝 Scraps\n") != std::string::npos; }));
    EXPECT_EQ(quillon.run({"rename-topics"}).code, 0);
    EXPECT_THAT(sandbox::dumped(phone.view()), HasSubstr("📝 Scraps"));
    endProgram(*program);
    EXPECT_EQ(content(settings), text);
}

TEST_F(Commands, SpeakTheLanguageThatIsAskedForToPeopleAlone) {
    const std::string forScripts = quillon.run({"status", "--json"}).out;
    const std::tuple<const char*, const char*, std::string> cases[]{
        {"nl:de:ja", "ja_JP.UTF-8", "Bot:          nicht verbunden\n"},
        {"", "ja_JP.UTF-8", "ボット:         未接続\n"},
        {"de", "C", "Bot:      not connected\n"},
    };
    for (const auto& [languages, locale, line] : cases) {
        quillon.environment.insert(QStringLiteral("LANGUAGE"), QString::fromUtf8(languages));
        quillon.environment.insert(QStringLiteral("LC_ALL"), QString::fromUtf8(locale));
        EXPECT_THAT(quillon.run({"status"}).out, StartsWith(line)) << languages << locale;
        EXPECT_EQ(quillon.run({"status", "--json"}).out, forScripts) << languages << locale;
    }
}

TEST_F(Commands, NameAnAddressOfTheBotApiThatIsNone) {
    quillon.environment.insert(QStringLiteral("QUILLON_BOT_API"), QStringLiteral("localhost:8081"));
    expectRun({"connect"}, 1, "",
              "QUILLON_BOT_API is not the address of a server. It looks like "
              "http://127.0.0.1:8081\n",
              token);
}

TEST_F(Commands, TellOfEachFileWhatBecameOfIt) {
    setUp();
    clipboard.copyFiles({"# a comment", file("a"), "file:///nowhere/b", file("two\nlines\t.txt")});
    phone.failNext(refusal("sendDocument", 400, "Bad Request: \x1b[31mTOPIC_CLOSED"));
    expectRun({"send"}, 1,
              "failed\t📎 Files\ta\nfailed\t📎 Files\tb\nsent\t📎 Files\ttwo\uFFFDlines .txt\n",
              "Bad Request: \uFFFD[31mTOPIC_CLOSED\nCouldn't read b\n");
    const Json history = Json::parse(quillon.run({"history", "--json"}).out);
    ASSERT_THAT(history, SizeIs(3));
    EXPECT_EQ(history[0]["title"], "two\nlines\t.txt") << "the newest stands first";
    EXPECT_EQ(history[1]["error"], "Couldn't read b");
    EXPECT_THAT(history[0]["date"].get<std::string>(),
                MatchesRegex("20..-..-..T..:..:..\\.[0-9]+Z"));
}

TEST_F(Commands, ReadTheTokenFromATerminalUnseen) {
    const Finished run = quillon.runOnTerminal({"connect"}, std::string{token} + "\n");
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.out, "Bot token: \r\nConnected to quillon_demo_bot\r\n");
    EXPECT_TRUE(run.echoes);

    const Finished interrupted = quillon.runOnTerminal({"connect"}, "\x03");
    EXPECT_EQ(interrupted.code, 128 + SIGINT);
    EXPECT_TRUE(interrupted.echoes);
}

TEST_F(Commands, ShowProgressOnATerminal) {
    setUp();
    clipboard.copyFiles({file("big.bin", std::string(40'000'000, 'x'))});
    phone.failNext(fault(sandbox::FaultKind::delay, 3s));
    const Finished run = quillon.runOnTerminal({"send"});
    EXPECT_EQ(run.code, 0);
    EXPECT_THAT(run.out, HasSubstr("\r\x1b[KSending… 40.0 of 40.0 MB"));
    EXPECT_THAT(run.out, EndsWith("\r\x1b[Ksent\t📎 Files\tbig.bin\r\n"))
        << "and takes it away again";
}

} // namespace quillon::test
