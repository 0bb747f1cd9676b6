#pragma once

#include "maintenance/Updater.h"

namespace quillon::test {

/// An update framework that the test plays, and that remembers what it was told.
class FakeFramework : public UpdateFramework {
public:
    UpdaterDelegate* delegate = nullptr;
    bool automatic = true;
    int checks = 0;
    std::function<void(bool)> canCheck;

    [[nodiscard]] std::optional<UpdateError> start(UpdaterDelegate& told) override {
        delegate = &told;
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
    [[nodiscard]] bool abandon() override { return true; }
};

/// What an updater needs to run on a fake framework, which `framework` leads to once it has
/// started.
inline UpdaterHooks fakeHooks(FakeFramework*& framework) {
    return {.makeFramework =
                [&framework] {
                    auto made = std::make_unique<FakeFramework>();
                    framework = made.get();
                    return made;
                },
            .shouldAskToMove = [] { return false; },
            .askToMove = {},
            .log = [](const std::string&) {}};
}

} // namespace quillon::test
