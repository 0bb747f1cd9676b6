#pragma once

#include "platform/linux/x11/X11Tray.h"

#include <QColor>
#include <QDBusConnection>
#include <QObject>

#include <optional>

namespace quillon {

/// Knows whether the desktop has a place for icons at the moment: a status notifier host on the
/// session bus (org.kde.StatusNotifierWatcher) or an X11 system tray. Both may come late, go and
/// come back.
class TrayWatch : public QObject {
    Q_OBJECT

public:
    explicit TrayWatch(QDBusConnection bus = QDBusConnection::sessionBus());

    /// Whether the bus has answered; before that, nothing is certain.
    [[nodiscard]] bool known() const { return hosted_.has_value(); }
    /// Whether there is a status notifier host.
    [[nodiscard]] bool hosted() const { return hosted_.value_or(false); }
    /// There is an X11 system tray.
    [[nodiscard]] bool managed() const { return tray_.present(); }
    /// There is a status notifier watcher, so a host may be on its way.
    [[nodiscard]] bool watched() const { return watched_; }
    /// The colour that an X11 system tray wants icons to have, if it says so.
    [[nodiscard]] std::optional<QColor> foreground() const { return tray_.foreground(); }
    /// Has the X11 system tray tell when its colour changes. To be called after Qt has made an
    /// icon.
    void listen() const { tray_.listen(); }

Q_SIGNALS:
    /// A new place for icons has come, which needs a new icon, or one has gone.
    void changed();
    /// known() has become true; changed() comes before.
    void answered();
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
    X11Tray tray_;
};

} // namespace quillon
