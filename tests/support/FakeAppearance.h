#pragma once

#include "platform/Appearance.h"

#include <utility>

namespace quillon::test {

/// A desktop whose looks the test changes.
class FakeAppearance : public Appearance {
public:
    void follow(std::function<void(const DesktopLooks&)> changed) override {
        changed_ = std::move(changed);
    }
    void change(const DesktopLooks& looks) const {
        if (changed_) changed_(looks);
    }

private:
    std::function<void(const DesktopLooks&)> changed_;
};

} // namespace quillon::test
