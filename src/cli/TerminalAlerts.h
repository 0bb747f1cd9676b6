#pragma once

#include "maintenance/Alerts.h"

namespace quillon {

/// Prints alerts as lines of error output. A command asks nothing, so the answer is always the last
/// button.
class TerminalAlerts final : public Alerts {
public:
    [[nodiscard]] QFuture<std::size_t> show(Alert alert) override;
};

} // namespace quillon
