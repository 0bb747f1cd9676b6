#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>
#include <QThread>

#include <atomic>
#include <mutex>

namespace quillon::test {

/// The object of a status notifier watcher on the bus, with a host or without.
class FakeWatcher : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hosted SCRIPTABLE true)

public:
    [[nodiscard]] bool hosted() const { return hosted_; }
    void setHosted(bool hosted) { hosted_ = hosted; }
    /// The bus names of those who registered icons, in order.
    [[nodiscard]] QStringList items() const {
        const std::lock_guard lock{mutex_};
        return items_;
    }

public Q_SLOTS:
    Q_SCRIPTABLE void RegisterStatusNotifierItem(const QString& /*service*/) {
        const std::lock_guard lock{mutex_};
        items_ += message().service();
    }

Q_SIGNALS:
    Q_SCRIPTABLE void StatusNotifierHostRegistered();

private:
    std::atomic<bool> hosted_ = false;
    mutable std::mutex mutex_; ///< guards items_
    QStringList items_;
};

/// A desktop's panel that shows icons given over the bus: in a thread and on a connection of its
/// own, since Qt waits for its answers. Gone from the bus with the object.
class FakeHost {
public:
    explicit FakeHost(bool hosted);
    FakeHost(const FakeHost&) = delete;
    FakeHost& operator=(const FakeHost&) = delete;
    ~FakeHost();

    /// The host that was missing comes to the watcher.
    void registerHost();
    [[nodiscard]] QStringList items() const { return watcher_.items(); }
    /// Calls a method of the icon that was registered last, or of its menu.
    QDBusMessage call(const QString& path, const QString& interface, const QString& method,
                      const QVariantList& arguments = {});

private:
    QDBusConnection bus_;
    FakeWatcher watcher_;
    QThread thread_;
};

} // namespace quillon::test
