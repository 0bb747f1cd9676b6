// What "quillon doctor" names when something has been broken.
#include "EndToEnd.h"
#include "support/RawServer.h"

namespace quillon::test {

struct Doctor : EndToEnd {
    struct Report {
        int code = -1;
        std::vector<std::string> failed;
        std::string text;
    };

    [[nodiscard]] Report report(const std::vector<std::string>& words = {}) const {
        std::vector<std::string> arguments{"doctor", "--json"};
        arguments.insert(arguments.end(), words.begin(), words.end());
        const Finished run = quillon.run(arguments);
        EXPECT_LT(run.took, 12s);
        EXPECT_EQ(run.err, "");
        Report report{.code = run.code, .failed = {}, .text = run.out};
        const Json told = Json::parse(run.out);
        for (const Json& check : told["checks"])
            if (check["state"] == "failed") report.failed.push_back(check["check"]);
        return report;
    }
    void expect(int code, const std::vector<std::string>& failed, const char* fault) const {
        const Report now = report();
        EXPECT_EQ(now.code, code) << fault;
        EXPECT_EQ(now.failed, failed) << fault << "\n" << now.text;
    }

    /// What is wrong with the group, and what is right again.
    void breakTheGroup() {
        phone.setClock(2h);
        expect(0, {"clock"}, "a clock that is wrong");
        phone.setClock(0s);
        phone.addBotToGroup(group, sandbox::BotRole::admin);
        expect(0, {"rights"}, "no right to manage topics");
        phone.addBotToGroup(group, sandbox::BotRole::kicked);
        expect(1, {"group"}, "a bot that was removed");
        phone.addBotToGroup(group);
        const Json topic = phone.view()["groups"][0]["topics"][1];
        phone.deleteTopic(group, topic["id"]);
        expect(1, {"topic-notes"}, "a topic that was deleted");
        ASSERT_EQ(quillon.run({"create-topics"}).code, 0);
    }

    void setVariable(const char* name, const std::string& value) {
        quillon.environment.insert(QString::fromLatin1(name), QString::fromStdString(value));
    }
};

TEST_F(Doctor, NamesWhatIsBroken) {
    expect(1, {"keyring"}, "nothing is set up");
    setUp();
    expect(0, {}, "nothing");
    breakTheGroup();

    const std::string entry = qgetenv("XDG_CONFIG_HOME").toStdString() + "/autostart";
    ASSERT_EQ(quillon.run({"launch-at-login", "on"}).code, 0);
    write(entry + "/dev.vostrel.quillon.desktop", "[Desktop Entry]\nExec=/nowhere/quillon\n");
    expect(0, {"login"}, "a program that is gone opens at login");
    ASSERT_EQ(quillon.run({"launch-at-login", "off"}).code, 0);

    const std::string api = phone.baseUrl();
    setVariable("http_proxy", "http://127.0.0.1:9");
    expect(1, {"network"}, "a proxy that is dead");
    setVariable("http_proxy", "");
    setVariable("QUILLON_BOT_API", "http://nowhere.invalid");
    expect(1, {"network"}, "a name that is not found");
    sandbox::Options options;
    options.tls = true;
    const sandbox::Sandbox stranger{options};
    setVariable("QUILLON_BOT_API", stranger.baseUrl());
    expect(1, {"network"}, "a stranger's certificate");
    setVariable("QUILLON_BOT_API", api);
    setVariable("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    expect(1, {"keyring"}, "no session bus");
    RawServer silent{[](RawServer::Connection& bus) { bus.awaitEnd(); }};
    setVariable("DBUS_SESSION_BUS_ADDRESS",
                "tcp:host=127.0.0.1,port=" + std::to_string(silent.port()));
    expect(1, {"keyring"}, "a session bus that hangs");
}

TEST_F(Doctor, LooksAtTheProgramThatRuns) {
    setUp();
    clipboard.copyText("a secret");
    const auto program = startProgram();
    EXPECT_TRUE(waitUntil([this] { return report().failed.empty(); }));
    const Report now = report();
    EXPECT_THAT(now.text, AllOf(HasSubstr("UTF8_STRING"), Not(HasSubstr("a secret")),
                                Not(HasSubstr("Family")), Not(HasSubstr("quillon_demo_bot"))));
    EXPECT_THAT(report({"--names"}).text,
                AllOf(HasSubstr("Family"), HasSubstr("@quillon_demo_bot")));
    breakTheGroup();
    const Finished lines = quillon.run({"doctor"});
    EXPECT_THAT(lines.out, HasSubstr("\nok      Topic notes:      it is there\n"));
    endProgram(*program);
}

TEST_F(Doctor, TellsOfAClipboardThatHangsAndOfAShortcutThatIsTaken) {
    setUp();
    const auto other = startProgram();
    setVariable("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    EXPECT_THAT(report().failed, ElementsAre("shortcut", "keyring"));
    setVariable("DBUS_SESSION_BUS_ADDRESS", qgetenv("DBUS_SESSION_BUS_ADDRESS").toStdString());
    endProgram(*other);
    clipboard.copyText("a");
    clipboard.hang();
    expect(1, {"clipboard"}, "an owner that hangs");
}

} // namespace quillon::test
