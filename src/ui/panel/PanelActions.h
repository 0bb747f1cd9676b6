#pragma once

#include <functional>

namespace quillon {

class Updater;
class Workspace;

/// What the panel's buttons do outside the panel.
struct PanelActions {
    std::function<void()> showSettings;
    std::function<void()> checkForUpdates;
    std::function<void()> quit;
};

/// Has the update framework look for a new version, in front of all other windows; does nothing
/// where it has not started.
void checkForUpdates(const Updater& updater, Workspace& workspace);

} // namespace quillon
