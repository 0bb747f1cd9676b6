#pragma once

#include "platform/linux/x11/X11Manager.h"

#include <QColor>
#include <QDBusConnection>
#include <QObject>

#include <optional>

namespace quillon {

/// Knows whether the desktop has a place for icons at the moment: a status notifier host on the
/// session bus (org.kde.StatusNotifierWatcher) or an X11 system tray (the manager selection of the
/// freedesktop System Tray Protocol). Both may come late, go and come back.
class TrayWatch : public QObject {
    Q_OBJECT

public:
    explicit TrayWatch(QDBusConnection bus = QDBusConnection::sessionBus());

    /// Whether the bus has answered: nothing is sure before.
    [[nodiscard]] bool known() const { return hosted_.has_value(); }
    /// There is a status notifier host.
    [[nodiscard]] bool hosted() const { return hosted_.value_or(false); }
    /// There is an X11 system tray.
    [[nodiscard]] bool managed() const { return manager_.present(); }
    /// There is a status notifier watcher, so that a host may well be on its way.
    [[nodiscard]] bool watched() const { return watched_; }
    /// The colour that an X11 system tray wants icons to have, if it says so.
    [[nodiscard]] std::optional<QColor> foreground() const;
    /// Has the X11 system tray tell when it ends and when its colour changes. To be called again
    /// after Qt has made an icon, since it listens on the same connection, to less.
    void listen() const { manager_.listen(); }

Q_SIGNALS:
    /// A place for icons has come, to which an icon must be given anew, or one has gone.
    void changed();
    /// foreground() is another.
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
