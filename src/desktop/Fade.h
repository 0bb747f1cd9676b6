#pragma once

#include "platform/Clock.h"

namespace quillon {

/// A number that moves smoothly to a target, one step for each frame, driven by a Clock.
class Fade {
public:
    /// Calls `apply` with each new value.
    Fade(Clock& clock, std::function<void(double)> apply);

    /// Moves from the present value to `target`, instead of to the target before, and then calls
    /// `done`. With a duration of zero all of that happens before this returns.
    void run(double target, std::chrono::milliseconds duration, std::function<void()> done = {});

    [[nodiscard]] double value() const { return value_; }

private:
    void step();

    Clock& clock_;
    std::function<void(double)> apply_;
    double value_ = 0;
    double from_ = 0;
    double target_ = 0;
    std::chrono::milliseconds duration_{};
    std::chrono::milliseconds elapsed_{};
    Clock::Time last_;
    std::function<void()> done_;
    std::unique_ptr<Clock::Timer> timer_;
};

} // namespace quillon
