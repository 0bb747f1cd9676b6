#pragma once

#include <QDBusArgument>
#include <QList>
#include <QString>
#include <QVariantMap>

namespace quillon {

/// A shortcut as the portal writes it: its id, and what is wanted or known of it.
struct PortalShortcut {
    QString id;
    QVariantMap properties;
};

QDBusArgument& operator<<(QDBusArgument& argument, const PortalShortcut& shortcut);
const QDBusArgument& operator>>(const QDBusArgument& argument, PortalShortcut& shortcut);

/// The shortcuts in a value of an answer; none if it is anything else.
[[nodiscard]] QList<PortalShortcut> portalShortcuts(const QVariant& value);

} // namespace quillon
