// How smoothly the thread's event loop turns.
#pragma once

#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <ctime>
#include <fstream>

namespace quillon::bench {

using Milliseconds = std::chrono::duration<double, std::milli>;

/// The processor time that this thread has had so far.
inline Milliseconds threadTime() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds{time.tv_sec} + std::chrono::nanoseconds{time.tv_nsec};
}

/// How long this thread has been ready to run without a processor to run on, so far. The second
/// number of the kernel's scheduler statistics, in ns.
inline Milliseconds timeWaited() {
    std::ifstream file{"/proc/thread-self/schedstat"};
    std::int64_t ran = 0;
    std::int64_t waited = 0;
    file >> ran >> waited;
    return std::chrono::nanoseconds{waited};
}

/// Beats each millisecond for as long as the event loop lets it.
class Pulse {
public:
    Pulse() {
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.callOnTimeout([this] { beat(); });
        timer_.start(std::chrono::milliseconds{1});
    }

    [[nodiscard]] Milliseconds longestGap() const { return longest_; }
    /// Less the time in it that the thread only waited for a processor.
    [[nodiscard]] Milliseconds longestOwnGap() const { return longestOwn_; }

private:
    void beat() {
        const auto now = std::chrono::steady_clock::now();
        const Milliseconds waited = timeWaited();
        const Milliseconds gap = now - last_;
        longest_ = std::max(longest_, gap);
        longestOwn_ = std::max(longestOwn_, gap - (waited - waitedAtLast_));
        last_ = now;
        waitedAtLast_ = waited;
    }

    QTimer timer_;
    std::chrono::steady_clock::time_point last_ = std::chrono::steady_clock::now();
    Milliseconds waitedAtLast_ = timeWaited();
    Milliseconds longest_{};
    Milliseconds longestOwn_{};
};

} // namespace quillon::bench
