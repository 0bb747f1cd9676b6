// Several starts of the program in one session, and what they leave to each other.
#include "EndToEnd.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quillon::test {

namespace {

using namespace std::chrono_literals;
using testing::SizeIs;

constexpr const char* busyText = "Another Quillon is at work. Quit it, or wait until it is done.\n";

using Starts = EndToEnd;

} // namespace

TEST_F(Starts, TwoAtTheSameMomentLeaveOneProgram) {
    for (int round = 1; round <= 10; ++round) {
        std::array<std::unique_ptr<QProcess>, 2> starts{quillon.start({}), quillon.start({})};
        const auto ended = [](const auto& start) { return start->state() == QProcess::NotRunning; };
        ASSERT_TRUE(waitUntil([&] { return std::ranges::any_of(starts, ended); }));
        EXPECT_TRUE(Program::hasName());
        if (!ended(starts[0])) std::swap(starts[0], starts[1]);
        EXPECT_EQ(Program::finish(*starts[0]).code, 0) << "round " << round;
        EXPECT_THAT(quillon.processes(), SizeIs(1)) << "round " << round;
        starts[1]->terminate();
        EXPECT_EQ(Program::finish(*starts[1]).code, 0) << "round " << round;
    }
}

TEST_F(Starts, OneBesideAProgramThatHangsSaysSo) {
    const auto hanging = quillon.start({});
    ASSERT_TRUE(waitUntil(Program::hasName));
    ::kill(static_cast<pid_t>(hanging->processId()), SIGSTOP);
    const Finished run = quillon.run({});
    ::kill(static_cast<pid_t>(hanging->processId()), SIGCONT);
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.err, busyText);
    EXPECT_LE(run.took, 5s);
    hanging->terminate();
    EXPECT_EQ(Program::finish(*hanging).code, 0);
}

TEST_F(Starts, OfTwoSendsOneIsTurnedAway) {
    setUp();
    clipboard.copyFiles({file("a.txt")});
    sandbox::Fault slow = fault(sandbox::FaultKind::delay);
    slow.delay = 2s;
    phone.failNext(slow);
    const auto first = quillon.start({"send"});
    const auto second = quillon.start({"send"});
    const auto one = Program::finish(*first);
    const auto other = Program::finish(*second);
    EXPECT_EQ(one.code + other.code, 1);
    EXPECT_EQ(one.err + other.err, busyText);
    EXPECT_THAT(messages("📎 Files"), SizeIs(1));
    EXPECT_THAT(Json::parse(quillon.run({"history", "--json"}).out), SizeIs(1));
}

} // namespace quillon::test
