#include "core/DataLock.h"

#include "support/TestComputer.h"

#include <gtest/gtest.h>

namespace quillon::test {

namespace {

using namespace std::chrono_literals;

/// A command that wants the data while another process holds them.
struct DataLockTest : testing::Test {
    TestComputer computer;
    std::optional<FolderLock> other = FolderLock::take(computer.platform.dataFolder);
    bool ended = false;
    std::optional<FolderLock> taken;

    QCoro::Task<> want() {
        taken = co_await takeDataLock(computer.platform, dataLockPatience);
        ended = true;
    }
};

} // namespace

TEST_F(DataLockTest, WaitsUntilTheOtherIsDone) {
    want();
    computer.clock.advance(4s);
    EXPECT_FALSE(ended);
    other.reset();
    computer.clock.advance(100ms);
    EXPECT_TRUE(ended);
    EXPECT_TRUE(taken);
    EXPECT_FALSE(FolderLock::take(computer.platform.dataFolder));
}

TEST_F(DataLockTest, GivesUpWhenItsPatienceIsOver) {
    want();
    computer.clock.advance(dataLockPatience + 100ms);
    EXPECT_TRUE(ended);
    EXPECT_FALSE(taken);
}

} // namespace quillon::test
