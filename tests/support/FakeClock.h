#pragma once

#include "platform/Clock.h"

#include <algorithm>
#include <map>
#include <utility>

namespace quillon::test {

/// A clock that stands still until it is told to move on.
class FakeClock : public Clock {
public:
    explicit FakeClock(Time start = Time{std::chrono::seconds{1'700'000'000}}) : now_{start} {}

    [[nodiscard]] Time now() const override { return now_; }

    [[nodiscard]] std::unique_ptr<Timer> after(std::chrono::milliseconds delay,
                                               std::function<void()> action) override {
        auto timer = std::make_unique<Pending>(std::move(action));
        due_.emplace(now_ + delay, timer->action);
        return timer;
    }

    /// Moves the time on, stopping at each callback that falls due on the way: the callback sees
    /// its own time, and what it schedules runs too when that is due by then.
    void advance(std::chrono::milliseconds by) {
        const Time end = now_ + by;
        while (!due_.empty() && due_.begin()->first <= end) {
            const auto next = due_.extract(due_.begin());
            const auto action = next.mapped().lock();
            if (!action) continue;
            now_ = next.key();
            (*action)(); // held here: a callback may let go of its own timer
        }
        now_ = end;
    }

    /// How many callbacks are still to come.
    [[nodiscard]] auto pending() const {
        return std::count_if(due_.begin(), due_.end(),
                             [](const auto& entry) { return !entry.second.expired(); });
    }

    /// Sets the time of day without letting anything fall due, as a user who corrects it does.
    void jump(std::chrono::milliseconds by) {
        std::multimap<Time, std::weak_ptr<Action>> shifted;
        for (auto& [time, action] : due_)
            shifted.emplace(time + by, std::move(action));
        due_ = std::move(shifted);
        now_ += by;
    }

private:
    using Action = std::function<void()>;

    struct Pending : Timer {
        explicit Pending(Action run) : action{std::make_shared<Action>(std::move(run))} {}
        std::shared_ptr<Action> action;
    };

    Time now_;
    std::multimap<Time, std::weak_ptr<Action>> due_;
};

} // namespace quillon::test
