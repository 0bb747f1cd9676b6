#pragma once

#include "desktop/Banner.h"

#include <QCoroTask>

#include <functional>
#include <string>
#include <vector>

namespace quillon {

/// Looks what keeps the program from working, and tells each thing in a sentence or two.
using TroubleSource = std::function<QCoro::Task<std::vector<std::string>>()>;

/// The actions of the settings that are neither settings nor actions of the store. What they use
/// must outlive the views.
struct SettingsActions {
    std::function<void(BannerMessage)> showBanner;
    /// Removes the program, and ends it.
    std::function<QCoro::Task<>()> uninstall;
    /// Opens the panel, for desktops without a place for the icon.
    std::function<void()> openPanel{};
    /// May be empty.
    TroubleSource troubles{};
};

} // namespace quillon
