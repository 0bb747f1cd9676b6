#pragma once

#include "platform/Appearance.h"

#include <utility>

namespace quillon::test {

/// A desktop whose appearance the test changes.
class FakeAppearance : public AppearanceSource {
public:
    void follow(std::function<void(const Appearance&)> changed) override {
        changed_ = std::move(changed);
    }
    void change(const Appearance& appearance) const {
        if (changed_) changed_(appearance);
    }

private:
    std::function<void(const Appearance&)> changed_;
};

} // namespace quillon::test
