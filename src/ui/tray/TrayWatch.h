#pragma once

#include <QAbstractNativeEventFilter>
#include <QColor>
#include <QDBusConnection>
#include <QObject>

#include <cstdint>
#include <optional>

namespace quillon {

/// Knows whether the desktop has a place for icons at the moment: a status notifier host on the
/// session bus (org.kde.StatusNotifierWatcher) or an X11 system tray (the manager selection of the
/// freedesktop System Tray Protocol). Both may come late, go and come back.
class TrayWatch : public QObject, private QAbstractNativeEventFilter {
    Q_OBJECT

public:
    explicit TrayWatch(QDBusConnection bus = QDBusConnection::sessionBus());
    ~TrayWatch() override;

    /// Whether the bus has answered: nothing is sure before.
    [[nodiscard]] bool known() const { return hosted_.has_value(); }
    /// There is a status notifier host.
    [[nodiscard]] bool hosted() const { return hosted_.value_or(false); }
    /// There is an X11 system tray.
    [[nodiscard]] bool managed() const { return manager_ != 0; }
    /// There is a status notifier watcher, so that a host may well be on its way.
    [[nodiscard]] bool watched() const { return watched_; }
    /// The colour that an X11 system tray wants icons to have, if it says so.
    [[nodiscard]] std::optional<QColor> foreground() const;
    /// Has the X11 system tray tell when it ends and when its colour changes. To be called again
    /// after Qt has made an icon, since it listens on the same connection, to less.
    void listen() const;

Q_SIGNALS:
    /// A place for icons has come, to which an icon must be given anew, or one has gone.
    void changed();
    /// foreground() is another.
    void recoloured();

private Q_SLOTS:
    void askWatcher();

private:
    void watchBus();
    void watchManager();
    void setHosted(bool hosted);
    void lookForManager();
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

    QDBusConnection bus_;
    std::optional<bool> hosted_;
    bool watched_ = false;
    std::uint32_t selection_ = 0;   // the atom of the tray's selection
    std::uint32_t managerAtom_ = 0; // of the message that tells of a new owner
    std::uint32_t coloursAtom_ = 0; // of the property with the colours of icons
    std::uint32_t manager_ = 0;     // the owner's window
};

} // namespace quillon
