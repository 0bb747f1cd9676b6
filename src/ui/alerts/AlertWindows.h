#pragma once

#include "maintenance/Alerts.h"

namespace quillon {

class Workspace;

/// Shows alerts as windows in front of the program's other windows, which take no input meanwhile.
/// The event loop goes on.
class AlertWindows final : public Alerts {
public:
    explicit AlertWindows(Workspace& workspace) : workspace_{workspace} {}

    [[nodiscard]] QFuture<std::size_t> show(Alert alert) override;

private:
    Workspace& workspace_;
};

} // namespace quillon
