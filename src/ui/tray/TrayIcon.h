#pragma once

#include "platform/Clock.h"
#include "ui/controls/Refresher.h"
#include "ui/tray/TrayWatch.h"

#include <QMenu>
#include <QObject>
#include <QRect>
#include <QSystemTrayIcon>

#include <functional>
#include <memory>
#include <optional>

namespace quillon {

class Store;

/// What a click on the icon and its menu do.
struct TrayActions {
    /// Given the icon's place on the screen, empty where the desktop does not tell.
    std::function<void(const QRect& icon)> togglePanel;
    std::function<void(const QRect& icon)> openPanel;
    std::function<void()> showSettings;
    std::function<void()> quit;
};

/// The icon in the desktop's panel, for as long as there is a place for it, and its menu for those
/// desktops that open nothing but menus.
class TrayIcon : public QObject {
    Q_OBJECT

public:
    TrayIcon(Store& store, Clock& clock, TrayActions actions,
             QDBusConnection bus = QDBusConnection::sessionBus());
    ~TrayIcon() override;

    /// Whether the desktop has had no place for it for longer than a panel takes to start again.
    [[nodiscard]] bool missing() const { return missing_; }
    /// The icon's place on the screen; empty when there is none or nobody knows.
    [[nodiscard]] QRect place() const;

Q_SIGNALS:
    void missingChanged();

private:
    void buildMenu();
    [[nodiscard]] bool hasPlace() const;
    /// Gives the icon to whatever place there is now.
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
    /// Whether Qt gives icons to a status notifier host, which it decides with the first one.
    std::optional<bool> overBus_;
    std::unique_ptr<Clock::Timer> patience_;
    bool waited_ = false;
    /// The colour of the X11 tray, once it has been looked at.
    QColor ground_;
    std::unique_ptr<Clock::Timer> look_;
    bool missing_ = false;
    Refresher refresher_;
};

} // namespace quillon
