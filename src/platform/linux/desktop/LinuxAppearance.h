#pragma once

#include "platform/linux/desktop/AppearanceSettings.h"
#include "platform/linux/portal/OpenToPortals.h"
#include "platform/linux/x11/XSettings.h"

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

namespace quillon {

/// Reads the desktop's appearance from the settings portal (org.freedesktop.portal.Settings) and,
/// for what that leaves open, from the XSETTINGS manager of X11 desktops without a portal. It
/// blocks on neither: while the portal hangs or is missing the appearance stays as it is, and a
/// portal that starts later is asked then.
class LinuxAppearance : public QObject, public AppearanceSource {
    Q_OBJECT

public:
    explicit LinuxAppearance(QDBusConnection bus = QDBusConnection::sessionBus());

    void follow(std::function<void(const Appearance&)> changed) override;

private:
    Q_SLOT void take(const QString& nameSpace, const QString& key, const QDBusVariant& value);
    Q_SLOT void ownerChanged(const QString& name, const QString& before, const QString& now);
    void followPortal();
    void ask();
    void announce();

    QDBusConnection bus_;
    /// While the portal may look who asks.
    std::optional<OpenToPortals> open_;
    AppearanceSettings settings_;
    std::optional<XSettings> xSettings_;
    std::optional<Appearance> announced_;
    std::function<void(const Appearance&)> changed_;
};

} // namespace quillon
