// What the program does when something that it needs is missing, or when it is killed.
#include "EndToEnd.h"
#include "support/Unprivileged.h"

#include <QElapsedTimer>

namespace quillon::test {

using Failures = EndToEnd;

TEST_F(Failures, WithoutAKeyringAreClear) {
    Program bare = quillon;
    bare.environment.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    const Finished run = bare.run({"connect"}, token);
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.err, "The bot answers, but no keyring could keep its token.\n");
    EXPECT_LT(run.took, 20s);
    EXPECT_EQ(bare.run({"status"}).code, 0);
}

TEST_F(Failures, WithoutADisplayAreClear) {
    setUp();
    Program blind = quillon;
    for (const QString& display : {QString{}, QStringLiteral(":987654")}) {
        blind.environment.insert(QStringLiteral("DISPLAY"), display);
        const Finished run = blind.run({"send"});
        EXPECT_EQ(run.code, 1);
        EXPECT_EQ(run.err, "There is no desktop to work on: neither an X server nor a Wayland "
                           "compositor answers.\n");
    }
    EXPECT_EQ(blind.run({"status"}).code, 0) << "needs no display";
}

TEST_F(Failures, AKillLosesNothingThatWasSaved) {
    setUp();
    clipboard.copyText("before");
    ASSERT_EQ(quillon.run({"send"}).code, 0);
    EXPECT_THAT(quillon.processes(), SizeIs(1)) << "one that shows the banner";
    ASSERT_TRUE(waitUntil([this] { return quillon.processes().empty(); }));
    const std::string status = quillon.run({"status"}).out;
    const std::string history = quillon.run({"history"}).out;

    for (const bool child : {true, false}) {
        phone.clearRequests();
        phone.failNext(fault(sandbox::FaultKind::hang));
        const auto sending = quillon.start({"send"});
        EXPECT_TRUE(waitUntil([this] { return !phone.requests().empty(); }));
        const int parent = static_cast<int>(sending->processId());
        for (const int process : quillon.processes()) {
            if ((process != parent) == child) ::kill(process, SIGKILL);
        }
        const Finished killed = Program::finish(*sending);
        if (!child) continue;
        EXPECT_EQ(killed.code, 1) << "as for want of memory";
        EXPECT_EQ(killed.err, "Quillon ended before it was done.\n");
    }
    EXPECT_TRUE(waitUntil([this] { return quillon.processes().empty(); }))
        << "its child goes with it";
    EXPECT_EQ(quillon.run({"status"}).out, status);
    EXPECT_EQ(quillon.run({"history"}).out, history);
    EXPECT_EQ(quillon.run({"send"}).code, 0);
    EXPECT_THAT(Json::parse(quillon.run({"history", "--json"}).out), SizeIs(2));
}

TEST_F(Failures, AFullDiskKeepsTheSetupThatWas) {
    const std::filesystem::path folder = data.path().toStdString() + "/Quillon";
    const std::filesystem::path config = folder / "config.json";
    const Mount disk = Mount::memory(folder, "size=8k");
    if (!disk) GTEST_SKIP() << "this user may mount nothing";
    ASSERT_EQ(quillon.run({"connect"}, token).code, 0);
    phone.userSays(group, "hi");
    // What the group adds must need another page of the disk.
    Json settings = Json::parse(content(config));
    settings["topics"][0]["name"] = std::string(4100 - settings.dump().size(), 'n');
    const std::string before = settings.dump();
    ASSERT_LT(before.size(), 4096U);
    write(config, before);
    write(folder / "filler", std::string(100'000, 'x'));
    const Finished run = quillon.run({"find-group"});
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.err, "The setup could not be saved. Is there room on the disk?\n");
    EXPECT_EQ(content(config), before);
}

TEST_F(Failures, AFileThatHangsDoesNotHoldUpTheEnd) {
    setUp();
    const Mount mount = Mount::hanging(documents.path().toStdString());
    if (!mount) GTEST_SKIP() << "this user may mount nothing";
    // A sanitizer that looks for leaks at the end waits for every thread.
    quillon.environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    const auto program = startProgram();
    clipboard.copyFiles({"file://" + documents.path().toStdString() + "/a"});
    const auto sending = quillon.start({"send"});
    const auto threads =
        std::filesystem::path{"/proc"} / std::to_string(program->processId()) / "task";
    EXPECT_TRUE(waitUntil([&] {
        return std::ranges::any_of(
            std::filesystem::directory_iterator{threads},
            [](const auto& thread) { return content(thread.path() / "comm") == "quillon-file\n"; });
    })) << "nothing reads the file";
    QElapsedTimer timer;
    timer.start();
    endProgram(*program);
    EXPECT_LT(timer.elapsed(), 3000) << "a second, and twice that for a machine at work";
    sending->waitForFinished();
}

} // namespace quillon::test
