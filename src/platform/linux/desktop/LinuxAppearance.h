#pragma once

#include "platform/linux/desktop/LookSettings.h"
#include "platform/linux/x11/XSettings.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

namespace quillon {

/// The desktop's looks as the settings portal tells them (org.freedesktop.portal.Settings) and, for
/// what that leaves open, the XSETTINGS manager, which X11 desktops without a portal have. Waits
/// for nobody: a portal that hangs or is missing leaves the looks as they are, and one that comes
/// later is asked then.
class LinuxAppearance : public QObject, public Appearance {
    Q_OBJECT

public:
    explicit LinuxAppearance(QDBusConnection bus = QDBusConnection::sessionBus());

    void follow(std::function<void(const DesktopLooks&)> changed) override;

private:
    Q_SLOT void take(const QString& nameSpace, const QString& key, const QDBusVariant& value);
    Q_SLOT void ownerChanged(const QString& name, const QString& before, const QString& now);
    void followPortal();
    void ask();
    void announce();

    QDBusConnection bus_;
    LookSettings settings_;
    std::optional<XSettings> xSettings_;
    std::optional<DesktopLooks> announced_;
    std::function<void(const DesktopLooks&)> changed_;
};

} // namespace quillon
