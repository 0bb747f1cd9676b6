#include "ui/theme/Transition.h"

#include "ui/theme/Motion.h"

#include <utility>

namespace quillon {

Transition::Transition(double value, std::function<void(double)> apply)
    : apply_{std::move(apply)},
      value_{value},
      target_{value} {
    animation_.setDuration(static_cast<int>(changeDuration.count()));
    animation_.setEasingCurve(QEasingCurve::InOutQuad);
    QObject::connect(&animation_, &QVariantAnimation::valueChanged, &animation_,
                     [this](const QVariant& now) {
                         if (animation_.state() == QAbstractAnimation::Running) set(now.toDouble());
                     });
    QObject::connect(&animation_, &QVariantAnimation::finished, &animation_,
                     [this] { set(target_); });
}

void Transition::go(double target, bool animated) {
    if (target == target_) return;
    target_ = target;
    if (!animated || !animationsEnabled()) return arrive();
    animation_.stop();
    animation_.setStartValue(value_);
    animation_.setEndValue(target);
    animation_.start();
}

void Transition::arrive() {
    animation_.stop();
    set(target_);
}

void Transition::set(double value) {
    value_ = value;
    apply_(value);
}

} // namespace quillon
