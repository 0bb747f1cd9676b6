#pragma once

#include "platform/linux/x11/X11Manager.h"

#include <QColor>
#include <QDBusConnection>
#include <QObject>

#include <optional>

namespace quillon {

/// Watches whether the desktop has a place for icons: a status notifier host on the session bus
/// (org.kde.StatusNotifierWatcher) or an X11 system tray (the manager selection of the freedesktop
/// System Tray Protocol). Both may come late, go, and come back.
class TrayWatch : public QObject {
    Q_OBJECT

public:
    explicit TrayWatch(QDBusConnection bus = QDBusConnection::sessionBus());

    /// Whether the bus has answered. Before that, hosted() and watched() mean nothing.
    [[nodiscard]] bool known() const { return hosted_.has_value(); }
    /// Whether there is a status notifier host.
    [[nodiscard]] bool hosted() const { return hosted_.value_or(false); }
    /// Whether there is an X11 system tray.
    [[nodiscard]] bool managed() const { return manager_.present(); }
    /// Whether there is a status notifier watcher, so that a host may be about to come.
    [[nodiscard]] bool watched() const { return watched_; }
    /// The colour that the X11 system tray wants icons to have, if it tells.
    [[nodiscard]] std::optional<QColor> foreground() const;
    /// Subscribes to the end of the X11 system tray and to changes of its colour. Has to be called
    /// again after Qt has made an icon: Qt subscribes to less on the same connection, which
    /// replaces this.
    void listen() const { manager_.listen(); }

Q_SIGNALS:
    /// A place for icons has come, which needs a new icon, or has gone.
    void changed();
    /// foreground() has changed.
    void recoloured();

private Q_SLOTS:
    void askWatcher();

private:
    void watchBus();
    void setHosted(bool hosted);

    QDBusConnection bus_;
    std::optional<bool> hosted_;
    bool watched_ = false;
    X11Manager manager_{"_NET_SYSTEM_TRAY", "_NET_SYSTEM_TRAY_COLORS"};
};

} // namespace quillon
