#pragma once

#include "platform/linux/portal/OpenToPortals.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QVariantMap>

#include <functional>
#include <map>
#include <optional>

namespace quillon {

// The names of the desktop portal's documentation.
namespace portal {
inline const QString name = QStringLiteral("org.freedesktop.portal.Desktop");
inline const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
inline const QString request = QStringLiteral("org.freedesktop.portal.Request");
inline const QString session = QStringLiteral("org.freedesktop.portal.Session");
inline const QString properties = QStringLiteral("org.freedesktop.DBus.Properties");
} // namespace portal

/// Calls of the desktop portal, which answers when it likes, and may do so never. With this object
/// they all end without an answer, and a question that the desktop is asking the user is withdrawn.
class PortalCalls : public QObject {
    Q_OBJECT

public:
    /// The answer, or an error.
    using Answered = std::function<void(const QDBusMessage& answer)>;
    /// How a request ended: 0 done, 1 the user declined, 2 something else; with its results.
    using Responded = std::function<void(uint code, const QVariantMap& results)>;

    /// The code of a request that the portal did not even take.
    static constexpr uint notTaken = 3;

    explicit PortalCalls(QDBusConnection bus);
    ~PortalCalls() override;

    void call(const QString& interface, const char* method, const QVariantList& arguments,
              Answered answered);
    /// Calls a method that asks for something; its last argument are these options.
    void request(const QString& interface, const char* method, QVariantList arguments,
                 QVariantMap options, Responded responded);
    /// Ends the portal's look at this process, when all is asked. The first request that the portal
    /// has taken ends it, too.
    void hide() { open_.reset(); }
    /// Sends a call and awaits nothing.
    void tell(const QString& path, const QString& interface, const char* method,
              const QVariantList& arguments = {}) const;

    /// Whether the signal comes from the portal that answered, and not from just any program.
    [[nodiscard]] bool isPortal(const QDBusMessage& signal) const;
    /// The path of the object that a call with this token makes, as the portal's documentation has
    /// it; of which kind, "request" or "session".
    [[nodiscard]] QString handle(const char* kind, const QString& token) const;
    /// A word that no other request or session of this process has.
    [[nodiscard]] static QString newToken();

private Q_SLOTS:
    void respond(const QDBusMessage& signal);

private:
    void send(const QDBusMessage& message, Answered answered);
    /// Asks the bus who the portal is, once it has answered and so is there.
    void learnOwner(std::function<void()> then);
    void end(const QString& path, uint code, const QVariantMap& results);

    QDBusConnection bus_;
    QString owner_;
    /// Until the portal has taken the first request, and with it knows who is calling.
    std::optional<OpenToPortals> open_;
    QTimer openLimit_;
    /// The requests that have not ended, by their objects' paths.
    std::map<QString, Responded> requests_;
};

} // namespace quillon
