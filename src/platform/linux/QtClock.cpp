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
        : m_action{std::move(action)} {
        m_timer.setSingleShot(true);
        m_timer.setTimerType(Qt::PreciseTimer);
        // The action is taken out first, because it may destroy this timer.
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer,
                         [this] { std::exchange(m_action, nullptr)(); });
        m_timer.start(std::clamp(delay, 0ms, longestDelay));
    }

private:
    std::function<void()> m_action;
    QTimer m_timer;
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
