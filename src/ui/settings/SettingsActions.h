#pragma once

#include "desktop/Banner.h"

#include <QCoroTask>

#include <functional>

namespace quillon {

/// What the settings do that is neither a setting nor an action of the store. All of it lives
/// longer than the views.
struct SettingsActions {
    std::function<void(BannerMessage)> showBanner;
    /// Removes the program, and ends it.
    std::function<QCoro::Task<>()> uninstall;
    /// Opens the panel, where no icon does.
    std::function<void()> openPanel{};
};

} // namespace quillon
