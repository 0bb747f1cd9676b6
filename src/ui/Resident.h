#pragma once

#include "core/Core.h"
#include "core/DataLock.h"
#include "maintenance/Uninstaller.h"
#include "maintenance/Updater.h"
#include "platform/linux/LinuxSurroundings.h"
#include "ui/CommandService.h"
#include "ui/ConfigWatch.h"
#include "ui/SettingsWindow.h"
#include "ui/panel/PanelWindow.h"
#include "ui/tray/TrayIcon.h"
#include "ui/updates/UpdateWindows.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quillon {

class Alerts;
class AppMover;

/// The session's one running program, from its start to its end.
class Resident {
public:
    /// Takes the name on the bus, and the data: while another process has those, it waits, and
    /// after a moment says so in a window. Null when another program has the name.
    [[nodiscard]] static QCoro::Task<std::unique_ptr<Resident>>
    claim(Platform& platform, Compositor& compositor, Alerts& alerts, AppMover& mover);

    /// Calls `then` once the icon has its place, or is known to have none; after `patience` at the
    /// latest.
    void whenIconSettled(std::chrono::milliseconds patience, std::function<void()> then) {
        trayIcon_.whenSettled(patience, std::move(then));
    }

    /// Begins the work, in the order that its parts need each other, and shows the "panel" or the
    /// "settings" when these are `wanted`.
    void start(std::string_view wanted);

private:
    Resident(Platform& platform, Compositor& compositor, Alerts& alerts, AppMover& mover,
             std::unique_ptr<CommandService> service, FolderLock lock);

    [[nodiscard]] std::unique_ptr<QWidget> makeSettings(const SettingsWindow::Fit& fit);
    [[nodiscard]] std::unique_ptr<PanelView> makePanel();
    [[nodiscard]] TrayActions trayActions();
    /// Shows the settings window while the setup is not finished.
    QCoro::Task<> offerSetup();
    /// What the settings window tells to be wrong.
    [[nodiscard]] QCoro::Task<std::vector<std::string>> troubles();
    [[nodiscard]] DesktopActions desktopActions();
    /// Forgets an update that waits, and removes what updates have left on the disk.
    [[nodiscard]] QCoro::Task<> dropUpdates();

    Platform& platform_;
    FolderLock lock_;
    Core core_;
    ConfigWatch configWatch_;
    UpdateWindows updateWindows_;
    Updater updater_;
    Uninstaller uninstaller_;
    SettingsWindow settingsWindow_;
    PanelWindow panelWindow_;
    TrayIcon trayIcon_;
    std::unique_ptr<CommandService> service_;
    LinuxSurroundings surroundings_;
};

} // namespace quillon
