#pragma once

#include <QCoroTask>

#include <functional>
#include <string>

namespace quillon {

/// What the settings do that is neither a setting nor an action of the store. All of it lives
/// longer than the views.
struct SettingsActions {
    /// Shows a banner, as Banner::show does.
    std::function<void(std::string text, std::string symbol, bool ok, bool sticky)> showBanner;
    /// Removes the program, and ends it.
    std::function<QCoro::Task<>()> uninstall;
    /// Opens the panel, where no icon does.
    std::function<void()> openPanel{};
};

} // namespace quillon
