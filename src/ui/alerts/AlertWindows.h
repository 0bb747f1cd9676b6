#pragma once

#include "maintenance/Alerts.h"

namespace quillon {

/// Alerts as windows in front of all others of the program, which take no input meanwhile. The
/// event loop goes on.
class AlertWindows final : public Alerts {
public:
    [[nodiscard]] QFuture<std::size_t> show(Alert alert) override;
};

} // namespace quillon
