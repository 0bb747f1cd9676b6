#pragma once

#include "support/Testing.h"

#include <QCoreApplication>
#include <QCoro/QCoroTask>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QFuture>
#include <QPromise>
#include <QThread>

#include <exception>
#include <type_traits>
#include <utility>

namespace quillon::test {

/// Turns the event loop until `done` holds; false when it does not within `limit`.
inline bool waitUntil(const std::function<bool()>& done,
                      std::chrono::milliseconds limit = std::chrono::seconds{10}) {
    const QDeadlineTimer deadline{limit};
    while (!done()) {
        if (deadline.hasExpired()) return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QThread::usleep(200);
    }
    return true;
}

/// Turns the event loop until the future has finished, and gives its result.
template <typename T>
T await(QFuture<T> future, std::chrono::milliseconds limit = std::chrono::seconds{10}) {
    EXPECT_TRUE(waitUntil([&] { return future.isFinished(); }, limit)) << "it does not end";
    if constexpr (std::is_void_v<T>) {
        future.waitForFinished();
    } else {
        return future.result();
    }
}

/// Runs the task to its end and gives its result; what it throws is thrown. QCoro::waitFor never
/// returns from a task that has failed before its first wait.
template <typename T>
T await(QCoro::Task<T> task) {
    QPromise<T> promise;
    promise.start();
    const auto run = [](QCoro::Task<T> running, QPromise<T>& outcome) -> QCoro::Task<> {
        try {
            if constexpr (std::is_void_v<T>) {
                co_await running;
            } else {
                outcome.addResult(co_await running);
            }
        } catch (...) {
            outcome.setException(std::current_exception());
        }
        outcome.finish();
    };
    const auto running = run(std::move(task), promise);
    return await(promise.future(), std::chrono::seconds{60});
}

} // namespace quillon::test
