// Several starts of the program in one session.
#include "EndToEndTest.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quillon::test {

namespace {

using namespace std::chrono_literals;
using testing::SizeIs;

} // namespace

TEST_F(EndToEnd, TwoStartsAtTheSameMomentLeaveOneProgram) {
    for (int round = 1; round <= 10; ++round) {
        std::array<std::unique_ptr<QProcess>, 2> starts{quillon.start({}), quillon.start({})};
        const auto ended = [](const auto& start) { return start->state() == QProcess::NotRunning; };
        ASSERT_TRUE(waitUntil([&] { return std::ranges::any_of(starts, ended); }));
        EXPECT_TRUE(Program::hasName());
        if (!ended(starts[0])) std::swap(starts[0], starts[1]);
        EXPECT_EQ(Program::finish(*starts[0]).code, 0) << "round " << round;
        EXPECT_THAT(Program::processes(), SizeIs(1)) << "round " << round;
        starts[1]->terminate();
        EXPECT_EQ(Program::finish(*starts[1]).code, 0) << "round " << round;
    }
}

TEST_F(EndToEnd, AStartBesideAProgramThatHangsSaysSo) {
    const auto hanging = quillon.start({});
    ASSERT_TRUE(waitUntil(Program::hasName));
    ::kill(static_cast<pid_t>(hanging->processId()), SIGSTOP);
    const Finished run = quillon.run({});
    ::kill(static_cast<pid_t>(hanging->processId()), SIGCONT);
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.err, "Another Quillon is at work. Quit it, or wait until it is done.\n");
    EXPECT_LE(run.took, 5s);
    hanging->terminate();
    EXPECT_EQ(Program::finish(*hanging).code, 0);
}

} // namespace quillon::test
