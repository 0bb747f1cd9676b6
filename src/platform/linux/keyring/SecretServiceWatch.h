#pragma once

#include "platform/SecretStore.h"

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QObject>

namespace quillon {

/// What the bus tells of the Secret Service: whether it has an item, and when that may change. The
/// program's own connection serves for this, which is open anyway: libsecret would take a thread
/// and a connection of its own for it at every start.
class SecretServiceWatch : public QObject {
    Q_OBJECT

public:
    explicit SecretServiceWatch(QDBusConnection bus);

    /// See SecretStore::find.
    [[nodiscard]] QFuture<SecretAnswer> find(const KeychainItem& item);
    /// See SecretStore::watch.
    void watch(std::function<void()> changed);

private Q_SLOTS:
    void ownerChanged(const QString& name, const QString& before, const QString& now);
    void collectionChanged(const QDBusObjectPath& collection);

private:
    QDBusConnection bus_;
    std::function<void()> changed_;
};

} // namespace quillon
