#pragma once

#include "Program.h"
#include "sandbox/Sandbox.h"
#include "support/Await.h"
#include "support/Faults.h"
#include "support/Files.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QTemporaryDir>

#include <csignal>

namespace quillon::test {

using sandbox::Json;

/// A user with a desktop, a phone and the program.
struct EndToEnd : testing::Test {
    static constexpr const char* token = sandbox::Sandbox::demoToken;

    void SetUp() override {
        // Forgetting the bot empties the keyring: not the one of whoever runs this by hand.
        if (qgetenv("HOME").indexOf("quillon-desktop.") < 0)
            FAIL() << "to be run through tools/private-desktop";
        const QStringList startable =
            QDBusConnection::sessionBus().interface()->activatableServiceNames();
        EXPECT_THAT(startable, UnorderedElementsAre(u"org.freedesktop.DBus", u"org.a11y.Bus"))
            << "the machine's services come to the tests";
        ASSERT_EQ(quillon.run({"forget"}).code, 0);
        phone.addBot(token, "quillon_demo_bot");
        group = phone.addGroup();
    }

    void TearDown() override {
        clipboard.clear();
        for (const int banner : quillon.processes())
            ::kill(banner, SIGTERM);
        EXPECT_TRUE(waitUntil([this] { return quillon.processes().empty(); }))
            << "the program stays on";
    }

    /// Starts the program that stays.
    [[nodiscard]] std::unique_ptr<QProcess>
    startProgram(const std::vector<std::string>& arguments = {}) const {
        auto program = quillon.start(arguments);
        EXPECT_TRUE(waitUntil(Program::hasName));
        return program;
    }
    /// Ends it as the session does.
    static void endProgram(QProcess& program) {
        program.terminate();
        const Finished ended = Program::finish(program);
        EXPECT_EQ(ended.code, 0) << ended.err;
    }
    /// Goes through the setup.
    void setUp() {
        phone.userSays(group, "hi");
        ASSERT_EQ(quillon.run({"connect"}, token).code, 0);
        ASSERT_EQ(quillon.run({"find-group"}).code, 0);
        ASSERT_EQ(quillon.run({"create-topics"}).code, 0);
        phone.clearRequests();
    }

    /// Writes a file and gives its URI.
    [[nodiscard]] std::string file(const std::string& name, const std::string& bytes = "x") const {
        const auto path = std::filesystem::path{documents.path().toStdString()} / name;
        write(path, bytes);
        return "file://" + QByteArray::fromStdString(path).toPercentEncoding("/").toStdString();
    }

    /// The messages that the topic shows on the phone, its service messages left out.
    [[nodiscard]] std::vector<Json> messages(const std::string& topic) const {
        const Json view = phone.view();
        std::vector<Json> messages;
        for (const Json& candidate : view["groups"][0]["topics"]) {
            if (candidate["name"] != topic) continue;
            for (const Json& message : candidate["messages"])
                if (message["kind"] != "service") messages.push_back(message);
        }
        return messages;
    }

    QTemporaryDir data{QString::fromLocal8Bit(qgetenv("HOME")) + QStringLiteral("/data-XXXXXX")};
    QTemporaryDir documents;
    sandbox::Sandbox phone;
    Program quillon{phone.baseUrl(), data.path().toStdString()};
    Copier clipboard;
    std::int64_t group = 0;
};

} // namespace quillon::test
