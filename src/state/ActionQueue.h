#pragma once

#include <coroutine>
#include <deque>
#include <utility>

namespace quillon {

/// Lets one action work at a time, in the order in which they asked. Main thread only; it outlives
/// the actions.
class ActionQueue {
public:
    /// The right to work, for as long as it lives. When it ends, the next action goes on, before
    /// the destructor returns.
    class Turn {
    public:
        explicit Turn(ActionQueue& queue) : queue_{&queue} {}
        Turn(Turn&& other) noexcept : queue_{std::exchange(other.queue_, nullptr)} {}
        Turn(const Turn&) = delete;
        Turn& operator=(const Turn&) = delete;
        Turn& operator=(Turn&&) = delete;
        ~Turn() {
            if (queue_) queue_->next();
        }

    private:
        ActionQueue* queue_;
    };

    /// `const auto turn = co_await queue.turn();` goes on at once while nobody else works.
    [[nodiscard]] auto turn() {
        struct Awaiter {
            ActionQueue& queue;

            [[nodiscard]] bool await_ready() const { return !std::exchange(queue.taken_, true); }
            void await_suspend(std::coroutine_handle<> action) const {
                queue.waiting_.push_back(action);
            }
            [[nodiscard]] Turn await_resume() const { return Turn{queue}; }
        };
        return Awaiter{*this};
    }

    /// Whether an action works.
    [[nodiscard]] bool isTaken() const { return taken_; }

private:
    void next() {
        if (waiting_.empty()) {
            taken_ = false;
            return;
        }
        const std::coroutine_handle<> action = waiting_.front();
        waiting_.pop_front();
        action.resume();
    }

    bool taken_ = false;
    std::deque<std::coroutine_handle<>> waiting_;
};

} // namespace quillon
