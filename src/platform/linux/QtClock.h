#pragma once

#include "platform/Clock.h"

namespace quillon {

/// The computer's clock; delays run on Qt's event loop, on the thread that asked for them.
class QtClock final : public Clock {
public:
    [[nodiscard]] Time now() const override;

    /// The action may destroy its own timer. Longer delays than 24 days are cut to that.
    [[nodiscard]] std::unique_ptr<Timer> after(std::chrono::milliseconds delay,
                                               std::function<void()> action) override;
};

} // namespace quillon
