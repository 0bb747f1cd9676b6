#include "core/DataLock.h"

#include "support/TestComputer.h"
#include "support/Testing.h"

namespace quillon::test {

/// A command that wants the data while another process holds them.
TEST(DataLockTest, IsWaitedForUntilPatienceIsOver) {
    TestComputer computer;
    std::optional<FolderLock> other = FolderLock::take(computer.platform.dataFolder);
    bool ended = false;
    std::optional<FolderLock> taken;
    const auto want = [&]() -> QCoro::Task<> {
        ended = false;
        taken = co_await takeDataLock(computer.platform, dataLockPatience);
        ended = true;
    };
    want();
    computer.clock.advance(dataLockPatience + 100ms);
    EXPECT_TRUE(ended);
    EXPECT_FALSE(taken);
    want();
    computer.clock.advance(4s);
    EXPECT_FALSE(ended);
    other.reset();
    computer.clock.advance(100ms);
    EXPECT_TRUE(ended);
    EXPECT_TRUE(taken);
    EXPECT_FALSE(FolderLock::take(computer.platform.dataFolder));
}

} // namespace quillon::test
