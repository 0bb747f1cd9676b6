#pragma once

#include <QVariantAnimation>

#include <functional>

namespace quillon {

/// A number that changes to a new value along an ease-in-out curve, or at once.
class Transition {
public:
    /// Calls `apply` with each value on the way, the last one included.
    Transition(double value, std::function<void(double)> apply);

    /// Changes at once unless `animated`, or if the user wants no animations.
    void go(double target, bool animated);
    /// Ends a change that is under way: takes its last value at once.
    void arrive();

    [[nodiscard]] double value() const { return value_; }
    [[nodiscard]] double target() const { return target_; }
    [[nodiscard]] bool running() const { return value_ != target_; }

private:
    void set(double value);

    std::function<void(double)> apply_;
    double value_;
    double target_;
    QVariantAnimation animation_;
};

} // namespace quillon
