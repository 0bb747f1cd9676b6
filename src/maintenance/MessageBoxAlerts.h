#pragma once

#include "maintenance/Alerts.h"

namespace quillon {

/// Alerts as windows in front of all others of the program. The event loop goes on meanwhile.
class MessageBoxAlerts final : public Alerts {
public:
    [[nodiscard]] QFuture<std::size_t> show(Alert alert) override;
};

} // namespace quillon
