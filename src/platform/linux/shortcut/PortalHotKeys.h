#pragma once

#include "platform/HotKeys.h"
#include "platform/linux/shortcut/FoundSession.h"

#include <QDBusConnection>
#include <QObject>

#include <chrono>
#include <filesystem>
#include <set>

namespace quillon {

/// Hot keys of a Wayland session, where only the desktop can bind keys: asks its portal, and tells
/// what else there is where the portal gives none. Nothing here waits for anybody. Lives on the
/// main thread and outlives its registrations.
class PortalHotKeys final : public QObject, public HotKeys {
    Q_OBJECT

public:
    struct Options {
        FoundSession session{};
        /// The program, and the name of its desktop entry without ".desktop".
        std::filesystem::path executable{};
        std::string applicationId{};
        /// The address of the bus that the portal is on; empty for the session's.
        QString bus{};
        /// A portal that has not answered for this long counts as silent until it does.
        std::chrono::milliseconds patience = std::chrono::seconds{30};
        /// How long after its end a portal that had answered is started again, unless it has come
        /// back by itself.
        std::chrono::milliseconds comeback = std::chrono::seconds{1};
    };

    explicit PortalHotKeys(Options options);
    ~PortalHotKeys() override;

    void installHandler(std::function<void(const std::string&)> handler) override;
    void observe(std::function<void(PhysicalKey, const HotKeyState&)> observer) override;
    [[nodiscard]] std::unique_ptr<Registration> registerHotKey(PhysicalKey key) override;

private Q_SLOTS:
    void ownerChanged(const QString& name, const QString& before, const QString& now);

private:
    /// Looks at the desktop's key bindings when the user comes to one of the program's windows, for
    /// they can be changed in its settings.
    void activityChanged(Qt::ApplicationState now);

    class Asked;

    Options options_;
    /// A connection for the portal alone, which knows programs by their connections; not connected
    /// without a session bus.
    QString busName_;
    QDBusConnection bus_;
    std::function<void(const std::string&)> handler_;
    std::function<void(PhysicalKey, const HotKeyState&)> observer_;
    std::set<Asked*> asked_;
};

} // namespace quillon
