#pragma once

#include "Program.h"
#include "sandbox/Sandbox.h"
#include "support/Await.h"
#include "support/Faults.h"

#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <csignal>

namespace quillon::test {

using sandbox::Json;

/// A picture of 40 by 30 pixels in a format such as "png", made by another program.
inline QByteArray converted(const std::string& format) {
    QProcess convert;
    convert.start(QStringLiteral("convert"),
                  {QStringLiteral("-size"), QStringLiteral("40x30"), QStringLiteral("xc:orange"),
                   QString::fromStdString(format) + QStringLiteral(":-")});
    EXPECT_TRUE(convert.waitForFinished());
    return convert.readAllStandardOutput();
}

/// A user with a desktop, a phone and the program.
class EndToEnd : public testing::Test {
protected:
    static constexpr const char* token = sandbox::Sandbox::demoToken;

    void SetUp() override {
        // Forgetting the bot empties the keyring: not the one of whoever runs this by hand.
        if (qgetenv("HOME").indexOf("quillon-desktop.") < 0)
            FAIL() << "to be run through tools/private-desktop";
        ASSERT_EQ(quillon.run({"forget"}).code, 0);
        phone.addBot(token, "quillon_demo_bot");
        group = phone.addGroup();
    }

    void TearDown() override {
        clipboard.clear();
        for (const int banner : Program::processes())
            ::kill(banner, SIGTERM);
        // Qt does not remove files whose names it cannot decode.
        std::filesystem::remove_all(documents.path().toStdString());
        EXPECT_TRUE(waitUntil([] { return Program::processes().empty(); }))
            << "the program stays on";
    }

    /// Goes through the setup.
    void setUp() {
        phone.userSays(group, "hi");
        ASSERT_EQ(quillon.run({"connect"}, token).code, 0);
        ASSERT_EQ(quillon.run({"find-group"}).code, 0);
        ASSERT_EQ(quillon.run({"create-topics"}).code, 0);
        phone.clearRequests();
    }

    /// Writes a file and gives its name on the disk.
    std::string file(const std::string& name, const std::string& content) const;

    /// The messages that the topic shows on the phone, its service messages left out.
    std::vector<Json> messages(const std::string& topic) const;

    [[nodiscard]] std::filesystem::path dataFile(const std::string& name) const {
        return std::filesystem::path{data.path().toStdString()} / "Quillon" / name;
    }

    QTemporaryDir data{QString::fromLocal8Bit(qgetenv("HOME")) + QStringLiteral("/data-XXXXXX")};
    QTemporaryDir documents;
    sandbox::Sandbox phone;
    Program quillon{phone.baseUrl(), data.path().toStdString()};
    Copier clipboard;
    std::int64_t group = 0;
};

} // namespace quillon::test
