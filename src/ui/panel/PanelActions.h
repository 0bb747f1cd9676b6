#pragma once

#include <functional>

namespace quillon {

/// The actions of the panel's buttons that lie outside the panel.
struct PanelActions {
    std::function<void()> showSettings;
    std::function<void()> quit;
};

} // namespace quillon
