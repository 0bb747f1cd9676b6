#pragma once

#include <QCoreApplication>
#include <QCoro/QCoroTask>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QFuture>
#include <QThread>

#include <gtest/gtest.h>

#include <chrono>
#include <functional>

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
T await(QFuture<T> future) {
    EXPECT_TRUE(waitUntil([&] { return future.isFinished(); })) << "the future did not finish";
    if constexpr (!std::is_void_v<T>) return future.result();
}

/// Runs the task to its end and gives its result; what it throws is thrown.
template <typename T>
T await(QCoro::Task<T> task) {
    return QCoro::waitFor(std::move(task));
}

} // namespace quillon::test
