// Several starts of the program in one session, and what they leave to each other.
#include "EndToEnd.h"

#include <algorithm>
#include <array>

namespace quillon::test {

namespace {

constexpr const char* busyText = "Another Quillon is at work. Quit it, or wait until it is done.\n";
constexpr const char* silentText =
    "The Quillon that is running does not answer. End it and try again.\n";

using Words = std::vector<std::string>;

struct Starts : EndToEnd {
    /// Copies three files, the first of which meets the fault.
    void prepareSend(const sandbox::Fault& fault) {
        setUp();
        clipboard.copyFiles({file("a"), file("b"), file("c")});
        phone.failNext(fault);
    }
    [[nodiscard]] std::unique_ptr<QProcess> startSend() const {
        auto sending = quillon.start({"send"});
        EXPECT_TRUE(waitUntil([this] { return !phone.requests().empty(); }));
        return sending;
    }
};

/// Whether a window of the program, one with a title, is on the screen.
bool showsWindow() {
    return QProcess::execute(QStringLiteral("xdotool"),
                             words("search --onlyvisible --name ^Quillon$")) == 0;
}

} // namespace

TEST_F(Starts, EachWayGivesAProgramThatAnswers) {
    setUp();
    clipboard.copyText("a");
    for (const Words& way : std::vector<Words>{{}, {"settings"}, {"panel"}}) {
        SCOPED_TRACE(testing::PrintToString(way));
        const auto program = startProgram(way);
        for (const Words& command :
             std::vector<Words>{{"status"}, {"history"}, {"send"}, {"panel"}, {}})
            EXPECT_EQ(quillon.run(command).code, 0) << testing::PrintToString(command);
        EXPECT_THAT(quillon.processes(), SizeIs(1)) << "it did all of that";
        endProgram(*program);
    }
}

TEST_F(Starts, TwoAtTheSameMomentLeaveOneProgram) {
    for (int round = 1; round <= 10; ++round) {
        SCOPED_TRACE(round);
        std::array<std::unique_ptr<QProcess>, 2> starts{quillon.start({}), quillon.start({})};
        const auto ended = [](const auto& start) { return start->state() == QProcess::NotRunning; };
        ASSERT_TRUE(waitUntil([&] { return std::ranges::any_of(starts, ended); }));
        EXPECT_TRUE(Program::hasName());
        if (!ended(starts[0])) std::swap(starts[0], starts[1]);
        EXPECT_EQ(Program::finish(*starts[0]).code, 0);
        EXPECT_THAT(quillon.processes(), SizeIs(1));
        endProgram(*starts[1]);
    }
}

TEST_F(Starts, OneBesideAProgramThatHangsSaysSo) {
    const auto hanging = startProgram();
    ::kill(static_cast<pid_t>(hanging->processId()), SIGSTOP);
    const std::pair<Words, const char*> ways[]{{{}, busyText},
                                               {{"settings"}, busyText},
                                               {{"status"}, silentText},
                                               {{"send"}, silentText},
                                               {{"uninstall", "--yes"}, silentText}};
    std::vector<std::unique_ptr<QProcess>> starts;
    for (const auto& [words, text] : ways)
        starts.push_back(quillon.start(words));
    for (std::size_t index = 0; index < starts.size(); ++index) {
        EXPECT_TRUE(starts[index]->waitForFinished(7000)) << index;
        const Finished run = Program::finish(*starts[index]);
        EXPECT_EQ(run.code, 1) << index;
        EXPECT_EQ(run.err, ways[index].second) << index;
    }
    ::kill(static_cast<pid_t>(hanging->processId()), SIGCONT);
    endProgram(*hanging);
}

TEST_F(Starts, OfTwoSendsOneIsTurnedAway) {
    prepareSend(fault(sandbox::FaultKind::delay, 2s));
    const auto first = quillon.start({"send"});
    const auto second = quillon.start({"send"});
    const auto one = Program::finish(*first);
    const auto other = Program::finish(*second);
    EXPECT_EQ(one.code + other.code, 1);
    EXPECT_EQ(one.err + other.err, busyText);
    EXPECT_THAT(messages("📎 Files"), SizeIs(3));
    EXPECT_THAT(Json::parse(quillon.run({"history", "--json"}).out), SizeIs(3));
}

TEST_F(Starts, ASendInTheProgramThatStaysKeepsNobodyWaitingAndEndsWithWhoGaveIt) {
    prepareSend(fault(sandbox::FaultKind::hang));
    const auto program = startProgram();
    const auto sending = startSend();
    for (const char* command : {"status", "history"})
        EXPECT_EQ(quillon.run({command}).code, 0) << command;
    const Finished other = quillon.run({"send"});
    EXPECT_EQ(other.code, 1);
    EXPECT_EQ(other.err, "Another send is still running.\n");
    ::kill(static_cast<pid_t>(sending->processId()), SIGINT);
    EXPECT_EQ(Program::finish(*sending).code, 128 + SIGINT);
    // The bus has told the program by the time that it answers this.
    EXPECT_EQ(quillon.run({"status"}).code, 0);
    phone.stop();
    const auto history = [this] { return Json::parse(quillon.run({"history", "--json"}).out); };
    EXPECT_TRUE(waitUntil([&] { return !history().empty(); }));
    phone.start();
    EXPECT_EQ(quillon.run({"send"}).code, 0);
    EXPECT_THAT(messages("📎 Files"), SizeIs(3));
    EXPECT_THAT(history(), SizeIs(3 + 3)) << "what was not sent is there, too";
    endProgram(*program);
}

TEST_F(Starts, OneDuringALongSendSaysOnTheScreenThatItWaits) {
    prepareSend(fault(sandbox::FaultKind::hang));
    const auto sending = startSend();
    const auto program = quillon.start({});
    EXPECT_TRUE(waitUntil(showsWindow));
    phone.stop();
    EXPECT_EQ(Program::finish(*sending).code, 1);
    EXPECT_TRUE(waitUntil([] { return !showsWindow(); }));
    EXPECT_EQ(quillon.run({"status"}).code, 0);
    endProgram(*program);
}

} // namespace quillon::test
