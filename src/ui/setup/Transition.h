#pragma once

#include <QVariantAnimation>

#include <functional>

namespace quillon {

/// A number that goes to its new value along an ease-in-out curve, or at once.
class Transition {
public:
    /// `apply` is called with each value on the way, the last one included.
    Transition(double value, std::function<void(double)> apply);

    /// At once when not `animated` or where animations are reduced.
    void go(double target, bool animated);

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
