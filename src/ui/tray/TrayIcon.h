#pragma once

#include "ui/tray/TrayWatch.h"
#include "ui/views/Refresher.h"

#include <QMenu>
#include <QObject>
#include <QRect>
#include <QSystemTrayIcon>

#include <functional>
#include <memory>

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
    TrayIcon(Store& store, TrayActions actions,
             QDBusConnection bus = QDBusConnection::sessionBus());
    ~TrayIcon() override;

    /// Whether the desktop has a place for it now.
    [[nodiscard]] bool shown() const { return icon_ != nullptr; }
    /// The icon's place on the screen; empty when there is none or nobody knows.
    [[nodiscard]] QRect place() const;

private:
    void buildMenu();
    /// Gives the icon to whatever place there is now.
    void settle();
    void refresh();
    [[nodiscard]] QIcon image() const;
    bool eventFilter(QObject* watched, QEvent* event) override;

    Store& store_;
    TrayActions actions_;
    QMenu menu_;
    QAction* send_ = nullptr;
    TrayWatch watch_;
    std::unique_ptr<QSystemTrayIcon> icon_;
    Refresher refresher_;
};

} // namespace quillon
