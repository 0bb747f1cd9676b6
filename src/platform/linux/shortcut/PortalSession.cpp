#include "platform/linux/shortcut/PortalSession.h"

#include "base/Translate.h"
#include "platform/linux/shortcut/CompositorLine.h"

#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

const QString shortcutsInterface = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
const QString registryInterface = QStringLiteral("org.freedesktop.host.portal.Registry");

/// The version of the portal's interface from which on it has ConfigureShortcuts.
constexpr uint versionWithDialog = 2;

constexpr uint done = 0;
constexpr uint declinedByUser = 1;

/// Desktops that do not know the program's name keep its keys under this one, so it is the same at
/// each start.
QString newSessionToken() {
    static int count = 0;
    const QString name = QStringLiteral("quillon");
    return ++count == 1 ? name : name + QStringLiteral("_%1").arg(count);
}

/// A path that a portal writes as one, or as a text.
QString pathIn(const QVariant& value) {
    const auto path = value.value<QDBusObjectPath>().path();
    return path.isEmpty() ? value.toString() : path;
}

} // namespace

PortalSession::PortalSession(const QDBusConnection& bus, QString applicationId, PhysicalKey key,
                             Listener listener)
    : bus_{bus},
      applicationId_{std::move(applicationId)},
      key_{key},
      // The keys that the desktop has kept for an id win over those that are preferred, so each
      // choice has an id of its own.
      shortcutId_{QStringLiteral("send-") + QLatin1Char{letterOf(key)}},
      listener_{std::move(listener)},
      calls_{bus} {
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    listen();
    introduce();
}

PortalSession::~PortalSession() {
    const QString& open = session_.isEmpty() ? coming_ : session_;
    if (!open.isEmpty()) calls_.tell(open, portal::session, "Close");
}

void PortalSession::listen() {
    for (const auto& [signal, slot] :
         {std::pair{"Activated", SLOT(activated(QDBusMessage))},
          std::pair{"ShortcutsChanged", SLOT(shortcutsChanged(QDBusMessage))}})
        bus_.connect({}, portal::path, shortcutsInterface, QLatin1String{signal}, this, slot);
    bus_.connect({}, {}, portal::session, QStringLiteral("Closed"), this,
                 SLOT(closed(QDBusMessage)));
}

void PortalSession::introduce() {
    // Newer portals ask for the program's name before anything else. Older ones do not know the
    // question, and one that knows the program already refuses it: each answer will do.
    calls_.call(registryInterface, "Register", {applicationId_, QVariantMap{}},
                [this](const QDBusMessage&) { askVersion(); });
}

void PortalSession::askVersion() {
    calls_.call(portal::properties, "Get", {shortcutsInterface, QStringLiteral("version")},
                [this](const QDBusMessage& answer) {
                    if (answer.type() == QDBusMessage::ErrorMessage)
                        return tell(PortalAnswer::missing);
                    const auto value = answer.arguments().value(0).value<QDBusVariant>();
                    version_ = value.variant().toUInt();
                    create();
                });
}

void PortalSession::create() {
    const QString token = newSessionToken();
    coming_ = calls_.handle("session", token);
    QVariantMap options{{QStringLiteral("session_handle_token"), token}};
    // By the first draft of the portal, the shortcuts are told here, and desktops that keep to it
    // bind none that they learn of later.
    options[QStringLiteral("shortcuts")] = wanted();
    calls_.request(shortcutsInterface, "CreateSession", {}, options,
                   [this](uint code, const QVariantMap& results) {
                       coming_.clear();
                       session_ = pathIn(results.value(QStringLiteral("session_handle")));
                       if (code != done || session_.isEmpty()) return tell(PortalAnswer::failed);
                       // Those desktops have bound it by now, and would open their settings if told
                       // to again.
                       const auto shortcuts =
                           portalShortcuts(results.value(QStringLiteral("shortcuts")));
                       shortcuts.isEmpty() ? bind() : take(shortcuts);
                   });
}

void PortalSession::bind() {
    const QVariantList arguments{QVariant::fromValue(QDBusObjectPath{session_}), wanted(),
                                 QString{}};
    calls_.request(shortcutsInterface, "BindShortcuts", arguments, {},
                   [this](uint code, const QVariantMap& results) {
                       if (code == declinedByUser) return tell(PortalAnswer::declined);
                       if (code != done) return tell(PortalAnswer::failed);
                       const auto shortcuts =
                           portalShortcuts(results.value(QStringLiteral("shortcuts")));
                       // Some bind without saying what.
                       shortcuts.isEmpty() ? list() : take(shortcuts);
                   });
}

void PortalSession::list() {
    const QVariantList arguments{QVariant::fromValue(QDBusObjectPath{session_})};
    calls_.request(shortcutsInterface, "ListShortcuts", arguments, {},
                   [this](uint /*code*/, const QVariantMap& all) {
                       take(portalShortcuts(all.value(QStringLiteral("shortcuts"))));
                   });
}

void PortalSession::configure() const {
    calls_.tell(portal::path, shortcutsInterface, "ConfigureShortcuts",
                {QVariant::fromValue(QDBusObjectPath{session_}), QString{}, QVariantMap{}});
}

void PortalSession::take(const QList<PortalShortcut>& shortcuts) {
    const auto ours = std::ranges::find(shortcuts, shortcutId_, &PortalShortcut::id);
    const QString trigger =
        ours == shortcuts.end()
            ? QString{}
            : ours->properties.value(QStringLiteral("trigger_description")).toString();
    tell(trigger.isEmpty() ? PortalAnswer::unassigned : PortalAnswer::bound, trigger);
}

void PortalSession::tell(PortalAnswer answer, const QString& trigger) {
    calls_.hide();
    report_ = {.answer = answer,
               .trigger = trigger.toStdString(),
               .canConfigure = version_ >= versionWithDialog};
    listener_.told(report_);
}

QVariant PortalSession::wanted() const {
    // The form that freedesktop.org asks for: modifiers in capitals, and the key's own name.
    const QString keys = QStringLiteral("CTRL+ALT+") + QLatin1Char{letterOf(key_)};
    const QString description =
        QString::fromStdString(translate("Shortcut", "Send the clipboard to the phone"));
    return QVariant::fromValue(
        QList<PortalShortcut>{{shortcutId_,
                               {{QStringLiteral("description"), description},
                                {QStringLiteral("preferred_trigger"), keys}}}});
}

bool PortalSession::isOurs(const QDBusMessage& signal) const {
    return calls_.isPortal(signal) && !session_.isEmpty() &&
           pathIn(signal.arguments().value(0)) == session_;
}

void PortalSession::activated(const QDBusMessage& signal) {
    if (!isOurs(signal) || signal.arguments().value(1).toString() != shortcutId_) return;
    // Not every desktop tells of the keys that it has given.
    if (report_.answer == PortalAnswer::unassigned) tell(PortalAnswer::bound);
    const auto options = qdbus_cast<QVariantMap>(signal.arguments().value(3));
    listener_.pressed(options.value(QStringLiteral("activation_token")).toString().toStdString());
}

void PortalSession::shortcutsChanged(const QDBusMessage& signal) {
    if (isOurs(signal)) take(portalShortcuts(signal.arguments().value(1)));
}

void PortalSession::closed(const QDBusMessage& signal) {
    if (!calls_.isPortal(signal) || signal.path() != session_) return;
    session_.clear();
    tell(PortalAnswer::failed);
}

} // namespace quillon
