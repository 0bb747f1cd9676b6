#pragma once

#include <QFuture>
#include <QPromise>

#include <memory>
#include <utility>

namespace quillon {

/// The answer that a window will give, once. Copies share it. When the last copy goes without an
/// answer, the answer is `ifClosed`.
template <typename T>
class Answer {
public:
    explicit Answer(T ifClosed) : shared_{std::make_shared<Shared>(ifClosed)} {}

    [[nodiscard]] QFuture<T> future() const { return shared_->promise.future(); }
    void give(T value) const { shared_->give(value); }

private:
    struct Shared {
        explicit Shared(T value) : ifClosed{value} { promise.start(); }
        Shared(const Shared&) = delete;
        Shared& operator=(const Shared&) = delete;
        ~Shared() { give(ifClosed); }

        void give(T value) {
            if (std::exchange(given, true)) return;
            promise.addResult(value);
            promise.finish();
        }

        QPromise<T> promise;
        T ifClosed;
        bool given = false;
    };

    std::shared_ptr<Shared> shared_;
};

} // namespace quillon
