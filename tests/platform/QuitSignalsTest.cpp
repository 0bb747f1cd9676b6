#include "platform/linux/QuitSignals.h"
#include "support/Await.h"

#include <csignal>

namespace quillon::test {

TEST(QuitSignalsTest, QuitsUnlessTheSignalWasIgnoredBefore) {
    std::signal(SIGHUP, SIG_IGN); // as nohup does
    int quits = 0;
    {
        const QuitSignals signals{[&] { ++quits; }};
        std::raise(SIGHUP);
        EXPECT_FALSE(waitUntil([&] { return quits > 0; }, std::chrono::milliseconds{50}));
        std::raise(SIGTERM);
        EXPECT_TRUE(waitUntil([&] { return quits == 1; }));
    }
    EXPECT_EQ(std::signal(SIGHUP, SIG_DFL), SIG_IGN);
    EXPECT_EQ(std::signal(SIGTERM, SIG_DFL), SIG_DFL);
}

} // namespace quillon::test
