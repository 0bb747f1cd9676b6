#pragma once

#include "platform/Clock.h"

#include <QCoroFuture>
#include <QCoroTask>
#include <QFuture>
#include <QPromise>

#include <chrono>
#include <memory>
#include <optional>

namespace quillon {

/// Waits for a task that may hang. It begins at once, so that several are waited for side by side.
template <typename T>
class Within {
public:
    /// From now on the task has `limit` for its end. One that takes longer is left to itself.
    Within(Clock& clock, std::chrono::milliseconds limit, QCoro::Task<T> task)
        : promise_{std::make_shared<Promise>()} {
        promise_->start();
        timer_ = clock.after(limit, [promise = promise_] { settle(*promise, std::nullopt); });
        follow(std::move(task), promise_);
    }
    Within(Clock& clock, std::chrono::milliseconds limit, QFuture<T> future)
        : Within{clock, limit, awaited(std::move(future))} {}

    /// The task's result; none when it did not end in time.
    [[nodiscard]] QFuture<std::optional<T>> result() const { return promise_->future(); }

private:
    using Promise = QPromise<std::optional<T>>;

    static QCoro::Task<T> awaited(QFuture<T> future) {
        T result = co_await future;
        co_return result;
    }
    static QCoro::Task<> follow(QCoro::Task<T> task, std::shared_ptr<Promise> promise) {
        T result = co_await task;
        settle(*promise, std::move(result));
    }
    /// The first one counts.
    static void settle(Promise& promise, std::optional<T> result) {
        if (promise.future().isFinished()) return;
        promise.addResult(std::move(result));
        promise.finish();
    }

    std::shared_ptr<Promise> promise_;
    std::unique_ptr<Clock::Timer> timer_;
};

} // namespace quillon
