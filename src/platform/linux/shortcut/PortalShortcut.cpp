#include "platform/linux/shortcut/PortalShortcut.h"

namespace quillon {

QDBusArgument& operator<<(QDBusArgument& argument, const PortalShortcut& shortcut) {
    argument.beginStructure();
    argument << shortcut.id << shortcut.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, PortalShortcut& shortcut) {
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.properties;
    argument.endStructure();
    return argument;
}

QList<PortalShortcut> portalShortcuts(const QVariant& value) {
    if (value.metaType() != QMetaType::fromType<QDBusArgument>()) return {};
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String{"a(sa{sv})"}) return {};
    return qdbus_cast<QList<PortalShortcut>>(argument);
}

} // namespace quillon
