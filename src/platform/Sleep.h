#pragma once

#include "platform/Clock.h"

#include <coroutine>

namespace quillon {

/// `co_await sleep(clock, delay)` continues after the delay, on the main thread.
[[nodiscard]] inline auto sleep(Clock& clock, std::chrono::milliseconds delay) {
    struct Awaiter {
        Clock& clock;
        std::chrono::milliseconds delay;
        std::unique_ptr<Clock::Timer> timer{};

        [[nodiscard]] bool await_ready() const { return false; }
        void await_suspend(std::coroutine_handle<> handle) {
            timer = clock.after(delay, [handle] { handle.resume(); });
        }
        void await_resume() const {}
    };
    return Awaiter{clock, delay};
}

} // namespace quillon
