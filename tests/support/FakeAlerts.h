#pragma once

#include "maintenance/Alerts.h"

namespace quillon::test {

/// A user who answers every alert with the same button.
class FakeAlerts : public Alerts {
public:
    std::size_t answer = 0;
    std::vector<Alert> shown;

    [[nodiscard]] QFuture<std::size_t> show(Alert alert) override {
        shown.push_back(std::move(alert));
        return QtFuture::makeReadyFuture(answer);
    }
};

} // namespace quillon::test
