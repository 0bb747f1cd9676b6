#pragma once

#include "analytics/Analytics.h"
#include "cli/SpokenBanner.h"
#include "desktop/HUD.h"
#include "maintenance/Uninstaller.h"
#include "maintenance/Updater.h"
#include "platform/linux/files/FolderLock.h"
#include "platform/linux/x11/X11Compositor.h"
#include "state/Store.h"
#include "ui/CommandService.h"
#include "ui/SettingsWindow.h"
#include "ui/panel/PanelWindow.h"
#include "ui/tray/TrayIcon.h"
#include "ui/updates/UpdateWindows.h"

#include <memory>

namespace quillon {

class Alerts;
class AppMover;

/// The session's one running program: everything that works from its start to its end.
class Resident {
public:
    /// Waits a few seconds for commands that are at work on the data. Null when another program of
    /// the session has the name on the bus, or the data folder for longer.
    [[nodiscard]] static QCoro::Task<std::unique_ptr<Resident>>
    claim(Platform& platform, Alerts& alerts, AppMover& mover);

    /// Begins the work, in the order that its parts need each other, and shows the "panel" or the
    /// "settings" when these are `wanted`.
    void start(std::string_view wanted);

private:
    Resident(Platform& platform, Alerts& alerts, AppMover& mover,
             std::unique_ptr<CommandService> service, FolderLock lock);

    [[nodiscard]] std::unique_ptr<QWidget> makeSettings(const SettingsWindow::Fit& fit);
    [[nodiscard]] std::unique_ptr<PanelView> makePanel();
    [[nodiscard]] TrayActions trayActions();
    [[nodiscard]] DesktopActions desktopActions();

    Platform& platform_;
    FolderLock lock_;
    Analytics analytics_;
    X11Compositor compositor_;
    HUD hud_;
    SpokenBanner banner_;
    Store store_;
    UpdateWindows updateWindows_;
    Updater updater_;
    Uninstaller uninstaller_;
    SettingsWindow settingsWindow_;
    PanelWindow panelWindow_;
    TrayIcon trayIcon_;
    std::unique_ptr<CommandService> service_;
};

} // namespace quillon
