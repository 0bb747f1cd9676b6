#pragma once

#include <QCoreApplication>
#include <QCoro/QCoroTask>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QFuture>
#include <QThread>

#include <gtest/gtest.h>

#include <chrono>
#include <exception>
#include <functional>
#include <memory>
#include <stdexcept>
#include <type_traits>
#include <utility>
#include <variant>

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

/// Runs the task to its end and gives its result; what it throws is thrown. QCoro::waitFor never
/// returns from a task that has failed before its first wait.
template <typename T>
T await(QCoro::Task<T> task) {
    using Result = std::conditional_t<std::is_void_v<T>, std::monostate, T>;
    const auto result =
        std::make_shared<std::variant<std::monostate, std::exception_ptr, Result>>();
    const auto run = [](QCoro::Task<T> running, auto outcome) -> QCoro::Task<> {
        try {
            if constexpr (std::is_void_v<T>) {
                co_await running;
                outcome->template emplace<2>();
            } else {
                outcome->template emplace<2>(co_await running);
            }
        } catch (...) {
            outcome->template emplace<1>(std::current_exception());
        }
    };
    const auto running = run(std::move(task), result);
    if (!waitUntil([&] { return result->index() != 0; }, std::chrono::seconds{60}))
        throw std::runtime_error{"the task does not end"};
    if (const auto* error = std::get_if<1>(result.get())) std::rethrow_exception(*error);
    if constexpr (!std::is_void_v<T>) return std::get<2>(std::move(*result));
}

} // namespace quillon::test
