#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace quillon {

/// Tells the time of day and runs callbacks later. Tests drive a clock of their own.
class Clock {
public:
    using Time = std::chrono::system_clock::time_point;

    /// A callback that is still to come; destroying this cancels it.
    class Timer {
    public:
        virtual ~Timer() = default;
    };

    virtual ~Clock() = default;

    [[nodiscard]] virtual Time now() const = 0;

    /// Calls `action` once on the main thread after `delay`, never before this call has returned.
    [[nodiscard]] virtual std::unique_ptr<Timer> after(std::chrono::milliseconds delay,
                                                       std::function<void()> action) = 0;
};

} // namespace quillon
