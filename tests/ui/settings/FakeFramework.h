#pragma once

#include "platform/UpdateFramework.h"

namespace quillon::test {

/// An update framework that does nothing but remember.
class FakeFramework : public UpdateFramework {
public:
    bool automatic = true;
    int checks = 0;
    std::function<void(bool)> canCheck;

    [[nodiscard]] std::optional<UpdateError> start(UpdaterDelegate& /*delegate*/) override {
        return std::nullopt;
    }
    void observeCanCheck(std::function<void(bool)> observer) override {
        canCheck = std::move(observer);
        canCheck(true);
    }
    void checkForUpdates() override { ++checks; }
    [[nodiscard]] bool automaticallyChecksForUpdates() const override { return automatic; }
    void setAutomaticallyChecksForUpdates(bool automatically) override {
        automatic = automatically;
    }
};

} // namespace quillon::test
