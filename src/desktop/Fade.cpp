#include "desktop/Fade.h"

#include <algorithm>
#include <utility>

namespace quillon {
namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds frame = 16ms;

/// Maps 0 to 1 onto 0 to 1, slow at both ends.
double eased(double part) {
    return part * part * (3 - 2 * part);
}

} // namespace

Fade::Fade(Clock& clock, std::function<void(double)> apply)
    : clock_{clock},
      apply_{std::move(apply)} {}

void Fade::run(double target, std::chrono::milliseconds duration, std::function<void()> done) {
    from_ = value_;
    target_ = target;
    duration_ = duration;
    elapsed_ = 0ms;
    last_ = clock_.now();
    done_ = std::move(done);
    step();
}

void Fade::step() {
    // The clock tells the time of day. When the user sets it back, the step counts as one frame.
    const auto since = std::chrono::duration_cast<std::chrono::milliseconds>(clock_.now() - last_);
    last_ = clock_.now();
    elapsed_ += since < 0ms ? frame : since;
    const bool arrived = elapsed_ >= duration_;
    value_ = arrived ? target_ : from_ + (target_ - from_) * eased(elapsed_ / (duration_ * 1.0));
    apply_(value_);
    if (!arrived) {
        timer_ = clock_.after(std::min(frame, duration_ - elapsed_), [this] { step(); });
        return;
    }
    timer_.reset();
    if (const auto done = std::exchange(done_, {})) done();
}

} // namespace quillon
