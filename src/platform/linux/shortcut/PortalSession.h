#pragma once

#include "platform/HotKeys.h"
#include "platform/linux/portal/PortalCalls.h"
#include "platform/linux/shortcut/PortalShortcut.h"
#include "platform/linux/shortcut/ShortcutRules.h"

#include <QDBusConnection>
#include <QObject>

#include <functional>
#include <string>

namespace quillon {

/// One session of the portal for global shortcuts: asks for one key, once, and tells of its
/// presses. Each further question takes a new session. What it tells comes from the event loop.
class PortalSession : public QObject {
    Q_OBJECT

public:
    struct Listener {
        /// The portal has answered, or the user has changed the keys.
        std::function<void(const PortalReport& report)> told;
        /// The key was pressed; with an activation token, or without.
        std::function<void(const std::string& activation)> pressed;
    };

    /// Begins to ask, on a connection that is used for nothing but the portal. `applicationId` is
    /// the name of the program's desktop entry.
    PortalSession(const QDBusConnection& bus, QString applicationId, PhysicalKey key,
                  Listener listener);
    /// Ends the session, and with it the question to the user.
    ~PortalSession() override;

    /// Opens the desktop's dialog for the keys; only where the report says that there is one.
    void configure() const;

private Q_SLOTS:
    void activated(const QDBusMessage& signal);
    void shortcutsChanged(const QDBusMessage& signal);
    void closed(const QDBusMessage& signal);

private:
    void listen();
    // The steps, each of which leads to the next.
    void introduce();
    void askVersion();
    void create();
    void bind();
    void list();

    void take(const QList<PortalShortcut>& shortcuts);
    void tell(PortalAnswer answer, const QString& trigger = {});
    [[nodiscard]] QVariant wanted() const;
    [[nodiscard]] bool isOurs(const QDBusMessage& signal) const;

    QDBusConnection bus_;
    QString applicationId_;
    PhysicalKey key_;
    QString shortcutId_;
    Listener listener_;
    PortalCalls calls_;
    QString session_;
    /// Where the session will be whose making the portal has not answered; else empty.
    QString coming_;
    uint version_ = 0;
    PortalReport report_;
};

} // namespace quillon
