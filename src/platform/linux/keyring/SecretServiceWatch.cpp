#include "platform/linux/keyring/SecretServiceWatch.h"

#include "base/Environment.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QMap>
#include <QPromise>

#include <limits>
#include <memory>
#include <utility>

namespace quillon {

namespace {

// The names of the Secret Service API.
const QString serviceName = QStringLiteral("org.freedesktop.secrets");
const QString servicePath = QStringLiteral("/org/freedesktop/secrets");
const QString serviceInterface = QStringLiteral("org.freedesktop.Secret.Service");

constexpr int noTimeout = std::numeric_limits<int>::max();

using Attributes = QMap<QString, QString>;
using Paths = QList<QDBusObjectPath>;

/// The reply to SearchItems: the items that are unlocked, and those that are not.
SecretAnswer answerOf(const QDBusPendingReply<Paths, Paths>& reply) {
    if (reply.isError()) return SecretAnswer::none;
    if (!reply.argumentAt<0>().isEmpty()) return SecretAnswer::found;
    return reply.argumentAt<1>().isEmpty() ? SecretAnswer::absent : SecretAnswer::locked;
}

} // namespace

SecretServiceWatch::SecretServiceWatch(QDBusConnection bus) : bus_{std::move(bus)} {
    qDBusRegisterMetaType<Attributes>();
}

QFuture<SecretAnswer> SecretServiceWatch::find(const KeychainItem& item) {
    if (!hasSessionBus() || !bus_.isConnected())
        return QtFuture::makeReadyFuture(SecretAnswer::none);
    QDBusMessage question = QDBusMessage::createMethodCall(
        serviceName, servicePath, serviceInterface, QStringLiteral("SearchItems"));
    question << QVariant::fromValue(
        Attributes{{QStringLiteral("service"), QString::fromStdString(item.service)},
                   {QStringLiteral("account"), QString::fromStdString(item.account)}});
    const auto promise = std::make_shared<QPromise<SecretAnswer>>();
    promise->start();
    auto* const pending = new QDBusPendingCallWatcher{bus_.asyncCall(question, noTimeout), this};
    connect(pending, &QDBusPendingCallWatcher::finished, this, [promise, pending] {
        pending->deleteLater();
        promise->addResult(answerOf(*pending));
        promise->finish();
    });
    return promise->future();
}

void SecretServiceWatch::watch(std::function<void()> changed) {
    if (!std::exchange(changed_, std::move(changed))) {
        bus_.connect({}, QStringLiteral("/org/freedesktop/DBus"),
                     QStringLiteral("org.freedesktop.DBus"), QStringLiteral("NameOwnerChanged"),
                     {serviceName}, QStringLiteral("sss"), this,
                     SLOT(ownerChanged(QString, QString, QString)));
        // Without the service's name, the owner of which Qt would wait to be told.
        bus_.connect({}, servicePath, serviceInterface, QStringLiteral("CollectionChanged"), this,
                     SLOT(collectionChanged(QDBusObjectPath)));
    }
}

void SecretServiceWatch::ownerChanged(const QString& /*name*/, const QString& /*before*/,
                                      const QString& now) {
    if (!now.isEmpty()) changed_();
}

void SecretServiceWatch::collectionChanged(const QDBusObjectPath& /*collection*/) {
    changed_();
}

} // namespace quillon
