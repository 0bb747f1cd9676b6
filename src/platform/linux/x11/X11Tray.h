#pragma once

#include "platform/linux/x11/X11ManagerSelection.h"

#include <QColor>
#include <QObject>

#include <optional>

namespace quillon {

/// The system tray of the X server that Qt is connected to (freedesktop.org's System Tray
/// Protocol). It may come late, go and come back.
class X11Tray : public QObject {
    Q_OBJECT

public:
    X11Tray();

    [[nodiscard]] bool present() const { return selection_.isOwned(); }
    /// The colour that the tray wants icons to have, if it says so.
    [[nodiscard]] std::optional<QColor> foreground() const;
    /// Has the tray tell when its colour changes. To be called again after Qt has made an icon,
    /// because Qt asks the tray for less on the same connection.
    void listen() const { selection_.listen(); }

Q_SIGNALS:
    /// Another tray has come, or the tray has gone.
    void changed();
    /// foreground() has changed.
    void recoloured();

private:
    X11ManagerSelection selection_{"_NET_SYSTEM_TRAY", "_NET_SYSTEM_TRAY_COLORS"};
};

} // namespace quillon
