#include "ui/panel/PanelActions.h"

#include "maintenance/Updater.h"
#include "platform/Workspace.h"

namespace quillon {

void checkForUpdates(const Updater& updater, Workspace& workspace) {
    UpdateFramework* const controller = updater.controller();
    if (!controller) return;
    workspace.activate();
    controller->checkForUpdates();
}

} // namespace quillon
