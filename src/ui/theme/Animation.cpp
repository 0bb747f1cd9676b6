#include "ui/theme/Animation.h"

#include "ui/theme/Motion.h"

#include <utility>

namespace quillon {

Animation::Animation(double value, std::function<void(double)> apply)
    : apply_{std::move(apply)},
      value_{value},
      target_{value} {
    QObject::connect(&animation_, &QVariantAnimation::valueChanged, &animation_,
                     [this](const QVariant& now) {
                         if (animation_.state() == QAbstractAnimation::Running) set(now.toDouble());
                     });
    QObject::connect(&animation_, &QVariantAnimation::finished, &animation_,
                     [this] { set(target_); });
}

void Animation::go(double target, bool animated) {
    if (target == target_) return;
    run(target, animated ? changeDuration : changeDuration.zero(), QEasingCurve::InOutQuad);
}

void Animation::run(double target, std::chrono::milliseconds duration, const QEasingCurve& curve) {
    target_ = target;
    if (duration == duration.zero() || !animationsEnabled()) return arrive();
    start(duration, curve, 1);
}

void Animation::turn(double end, std::chrono::milliseconds duration) {
    if (!animationsEnabled()) return;
    value_ = 0;
    target_ = end;
    start(duration, QEasingCurve::Linear, -1);
}

void Animation::arrive() {
    animation_.stop();
    set(target_);
}

void Animation::start(std::chrono::milliseconds duration, const QEasingCurve& curve, int loops) {
    animation_.stop();
    animation_.setStartValue(value_);
    animation_.setEndValue(target_);
    animation_.setDuration(static_cast<int>(duration.count()));
    animation_.setEasingCurve(curve);
    animation_.setLoopCount(loops);
    animation_.start();
}

void Animation::set(double value) {
    value_ = value;
    apply_(value);
}

} // namespace quillon
