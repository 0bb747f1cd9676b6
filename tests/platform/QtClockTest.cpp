#include "platform/linux/QtClock.h"
#include "support/Await.h"

namespace quillon::test {
TEST(QtClockTest, ForgetsWhatIsDestroyedAndIsNeverEarly) {
    QtClock clock;
    int calls = 0;
    bool over = false;
    std::unique_ptr<Clock::Timer> own;
    const auto held = std::make_shared<int>(7);
    own = clock.after(1ms, [&own, &calls, held] {
        own.reset();
        calls += *held;
    });
    const auto late = clock.after(std::chrono::hours{24 * 365}, [&] { calls += 1000; });
    static_cast<void>(clock.after(1ms, [&] { calls += 100; }));
    const auto end = clock.after(20ms, [&] { over = true; });
    EXPECT_TRUE(waitUntil([&] { return over; }));
    EXPECT_EQ(calls, 7);
    EXPECT_EQ(held.use_count(), 1);
}

} // namespace quillon::test
