#include "platform/linux/QtClock.h"

#include <QTimer>

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

using namespace std::chrono_literals;

/// QTimer counts its milliseconds in an int.
constexpr std::chrono::milliseconds longestDelay = 24 * 24h;

class QtClockTimer final : public Clock::Timer {
public:
    QtClockTimer(std::chrono::milliseconds delay, std::function<void()> action)
        : action_{std::move(action)} {
        timer_.setSingleShot(true);
        timer_.setTimerType(Qt::PreciseTimer);
        // The action is taken out first, because it may destroy this timer.
        QObject::connect(&timer_, &QTimer::timeout, &timer_,
                         [this] { std::exchange(action_, nullptr)(); });
        timer_.start(std::clamp(delay, 0ms, longestDelay));
    }

private:
    std::function<void()> action_;
    QTimer timer_;
};

} // namespace

Clock::Time QtClock::now() const {
    return std::chrono::system_clock::now();
}

std::unique_ptr<Clock::Timer> QtClock::after(std::chrono::milliseconds delay,
                                             std::function<void()> action) {
    return std::make_unique<QtClockTimer>(delay, std::move(action));
}

} // namespace quillon
