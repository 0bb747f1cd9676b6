#include "platform/linux/desktop/LinuxAppearance.h"

#include "platform/linux/portal/PortalCalls.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QStringList>

#include <chrono>
#include <utility>

namespace quillon {

namespace {

const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString busName = QStringLiteral("org.freedesktop.DBus");

/// What is followed: a match for each keeps the bus from waking this process for anything else.
const QStringList namespaces{QStringLiteral("org.freedesktop.appearance"),
                             QStringLiteral("org.gnome.desktop.interface"),
                             QStringLiteral("org.kde.kdeglobals.KDE")};

/// A portal that has not answered by now is of no use, and does not hold an answer open for ever.
constexpr std::chrono::milliseconds patience = std::chrono::seconds{10};

/// What is in the variant, in however many variants it has been wrapped.
QVariant unwrapped(QVariant value) {
    while (value.metaType() == QMetaType::fromType<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

using Settings = QMap<QString, QVariantMap>;

/// The settings of a reply, an a{sa{sv}}; none if it is anything else.
Settings settingsOf(const QDBusMessage& reply) {
    if (reply.type() != QDBusMessage::ReplyMessage ||
        reply.signature() != QLatin1String{"a{sa{sv}}"})
        return {};
    return qdbus_cast<Settings>(reply.arguments().constFirst());
}

} // namespace

LinuxAppearance::LinuxAppearance(QDBusConnection bus) : bus_{std::move(bus)} {}

void LinuxAppearance::follow(std::function<void(const Appearance&)> changed) {
    changed_ = std::move(changed);
    xSettings_.emplace([this](const XSettingsValues& values) {
        for (const auto& [name, value] : values)
            settings_.set({{}, name}, value);
        announce();
    });
    followPortal();
}

void LinuxAppearance::followPortal() {
    // The type of a slot's argument, which Qt looks up by its name; its thread for the bus may not
    // have got to registering it.
    qRegisterMetaType<QDBusVariant>();
    // Without the portal's name, the owner of which Qt would wait to be told.
    for (const QString& each : namespaces) {
        bus_.connect({}, portal::path, settingsInterface, QStringLiteral("SettingChanged"), {each},
                     QStringLiteral("ssv"), this, SLOT(take(QString, QString, QDBusVariant)));
    }
    bus_.connect({}, QStringLiteral("/org/freedesktop/DBus"), busName,
                 QStringLiteral("NameOwnerChanged"), {portal::name}, QStringLiteral("sss"), this,
                 SLOT(ownerChanged(QString, QString, QString)));
    ask();
}

void LinuxAppearance::ask() {
    QDBusMessage question = QDBusMessage::createMethodCall(
        portal::name, portal::path, settingsInterface, QStringLiteral("ReadAll"));
    question << namespaces;
    open_.emplace();
    const QDBusPendingCall call = bus_.asyncCall(question, static_cast<int>(patience.count()));
    auto* const pending = new QDBusPendingCallWatcher{call, this};
    connect(pending, &QDBusPendingCallWatcher::finished, this, [this, pending] {
        pending->deleteLater();
        open_.reset();
        const Settings all = settingsOf(pending->reply());
        for (auto space = all.begin(); space != all.end(); ++space) {
            for (auto each = space->begin(); each != space->end(); ++each) {
                settings_.set({space.key().toStdString(), each.key().toStdString()},
                              unwrapped(each.value()));
            }
        }
        if (!all.isEmpty()) announce();
    });
}

void LinuxAppearance::take(const QString& nameSpace, const QString& key,
                           const QDBusVariant& value) {
    settings_.set({nameSpace.toStdString(), key.toStdString()}, unwrapped(value.variant()));
    announce();
}

void LinuxAppearance::ownerChanged(const QString& /*name*/, const QString& /*before*/,
                                   const QString& now) {
    if (!now.isEmpty()) ask();
}

void LinuxAppearance::announce() {
    const Appearance appearance = settings_.appearance();
    if (std::exchange(announced_, appearance) == appearance) return;
    if (changed_) changed_(appearance);
}

} // namespace quillon
