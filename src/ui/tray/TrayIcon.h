#pragma once

#include "platform/Clock.h"
#include "ui/controls/Refresher.h"
#include "ui/tray/TrayWatch.h"

#include <QMenu>
#include <QObject>
#include <QRect>
#include <QSystemTrayIcon>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace quillon {

class Store;

/// The actions of the icon and of its menu.
struct TrayActions {
    /// `icon` is the icon's place on the screen. It is empty if the desktop does not tell.
    std::function<void(const QRect& icon)> togglePanel;
    std::function<void(const QRect& icon)> openPanel;
    std::function<void()> showSettings;
    std::function<void()> quit;
};

/// The icon in the desktop's panel, which exists while the desktop has a place for it. Its menu is
/// for desktops on which icons open nothing but menus.
class TrayIcon : public QObject {
    Q_OBJECT

public:
    TrayIcon(Store& store, Clock& clock, TrayActions actions,
             QDBusConnection bus = QDBusConnection::sessionBus());
    ~TrayIcon() override;

    /// Calls `then` once the desktop has answered which places for icons there are, after
    /// `patience` at the latest. The icon is in its place by then, if there is one.
    void whenSettled(std::chrono::milliseconds patience, std::function<void()> then);
    /// Whether there has been no place for the icon for longer than a panel takes to restart.
    [[nodiscard]] bool missing() const { return missing_; }
    /// The icon's place on the screen. It is empty if there is no icon or its place is unknown.
    [[nodiscard]] QRect place() const;

Q_SIGNALS:
    void missingChanged();

private:
    void buildMenu();
    [[nodiscard]] bool hasPlace() const;
    /// Puts the icon into the place that there is now, if there is one.
    void settle();
    void makeIcon();
    void redraw();
    void setMissing(bool missing);
    void refresh();
    [[nodiscard]] QIcon image() const;
    bool eventFilter(QObject* watched, QEvent* event) override;

    Store& store_;
    Clock& clock_;
    TrayActions actions_;
    QMenu menu_;
    QAction* send_ = nullptr;
    TrayWatch watch_;
    std::unique_ptr<QSystemTrayIcon> icon_;
    /// Whether Qt gives icons to a status notifier host, which it decides with the first icon.
    std::optional<bool> overBus_;
    std::unique_ptr<Clock::Timer> patience_;
    bool waited_ = false;
    /// The background colour of the X11 tray, once it is known.
    QColor ground_;
    std::unique_ptr<Clock::Timer> look_;
    bool missing_ = false;
    Refresher refresher_;
};

} // namespace quillon
