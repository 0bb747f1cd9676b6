#pragma once

#include "platform/linux/x11/X11Connection.h"

#include <QColor>

#include <cstdint>
#include <memory>

namespace quillon::test {

/// A panel that owns the system tray of the freedesktop System Tray Protocol and takes in icons.
/// Gone with the object.
class FakeTray {
public:
    FakeTray();

    /// Whether an icon lies in it; takes in those that have asked.
    bool hasIcon();
    void setColour(const QColor& colour);
    /// A click of the left button into the middle of the icon.
    void click();

private:
    void announce();
    void takeIn(std::uint32_t icon);

    std::unique_ptr<X11Connection> connection_;
    std::uint32_t window_;
    std::uint32_t icon_ = 0;
};

} // namespace quillon::test
