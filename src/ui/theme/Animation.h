#pragma once

#include <QVariantAnimation>

#include <chrono>
#include <functional>

namespace quillon {

/// A number that moves, a step for each frame. Whatever moves, fades or turns follows one of these,
/// which all keep still if the user wants no animations.
class Animation {
public:
    /// Calls `apply` with each value on the way, the last one included.
    Animation(double value, std::function<void(double)> apply);

    /// Shows a change of state: moves to `target` along an ease-in-out curve, or takes it at once
    /// unless `animated`. What is on its way there already goes on.
    void go(double target, bool animated);
    /// Moves from the present value to `target` along the curve. All of the duration starts now,
    /// also for what is on its way there already. With a duration of zero it takes it at once.
    void run(double target, std::chrono::milliseconds duration, const QEasingCurve& curve);
    /// Moves evenly from 0 to `end`, again and again, until arrive() is called.
    void turn(double end, std::chrono::milliseconds duration);
    /// Ends a movement that is under way: takes its last value at once.
    void arrive();

    [[nodiscard]] double value() const { return value_; }
    [[nodiscard]] double target() const { return target_; }
    [[nodiscard]] bool running() const { return value_ != target_; }

private:
    void start(std::chrono::milliseconds duration, const QEasingCurve& curve, int loops);
    void set(double value);

    std::function<void(double)> apply_;
    double value_;
    double target_;
    QVariantAnimation animation_;
};

} // namespace quillon
