#pragma once

#include "maintenance/Alerts.h"

namespace quillon {

/// Alerts as lines of error output, for commands, which ask nothing: the answer is always the last
/// button.
class TerminalAlerts final : public Alerts {
public:
    [[nodiscard]] QFuture<std::size_t> show(Alert alert) override;
};

} // namespace quillon
