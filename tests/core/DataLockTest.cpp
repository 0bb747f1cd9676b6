#include "core/DataLock.h"

#include "support/World.h"

#include <gtest/gtest.h>

namespace quillon::test {

namespace {

using namespace std::chrono_literals;

/// A command that wants the data while another process holds them.
struct DataLockTest : testing::Test {
    World world;
    std::optional<FolderLock> other = FolderLock::take(world.platform.dataFolder);
    bool ended = false;
    std::optional<FolderLock> taken;

    QCoro::Task<> want(std::chrono::milliseconds patience) {
        taken = co_await takeDataLock(world.platform, patience);
        ended = true;
    }
};

} // namespace

TEST_F(DataLockTest, WaitsUntilTheOtherIsDone) {
    want(dataLockPatience);
    world.clock.advance(4s);
    EXPECT_FALSE(ended);
    other.reset();
    world.clock.advance(100ms);
    EXPECT_TRUE(ended);
    EXPECT_TRUE(taken);
    EXPECT_FALSE(FolderLock::take(world.platform.dataFolder));
}

TEST_F(DataLockTest, GivesUpWhenItsPatienceIsOver) {
    want(dataLockPatience);
    world.clock.advance(dataLockPatience + 100ms);
    EXPECT_TRUE(ended);
    EXPECT_FALSE(taken);
}

TEST_F(DataLockTest, DoesNotWaitWithoutPatience) {
    want(0ms);
    EXPECT_TRUE(ended);
    EXPECT_FALSE(taken);
}

} // namespace quillon::test
