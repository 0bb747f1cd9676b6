#pragma once

#include <QCoroTask>

#include <functional>
#include <string>

namespace quillon {

/// The actions of the settings that are neither settings nor actions of the store. What they use
/// must outlive the views.
struct SettingsActions {
    /// Shows a banner, as Banner::show does.
    std::function<void(std::string text, std::string symbol, bool ok, bool sticky)> showBanner;
    /// Removes the program, and ends it.
    std::function<QCoro::Task<>()> uninstall;
    /// Opens the panel, for desktops without a place for the icon.
    std::function<void()> openPanel{};
};

} // namespace quillon
