#pragma once

#include <functional>

namespace quillon {

/// What the panel's buttons do outside the panel.
struct PanelActions {
    std::function<void()> showSettings;
    std::function<void()> quit;
};

} // namespace quillon
