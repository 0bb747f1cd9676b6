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

    [[nodiscard]] bool available() const { return hosted_ || manager_ != 0; }
    /// What shows icons is a status notifier host.
    [[nodiscard]] bool hosted() const { return hosted_; }
    /// The colour that an X11 system tray wants icons to have, if it says so.
    [[nodiscard]] std::optional<QColor> foreground() const;

Q_SIGNALS:
    /// A place for icons has come, to which an icon must be given anew, or one has gone.
    void changed();

private Q_SLOTS:
    void askWatcher();

private:
    void watchBus();
    void watchManager();
    void setHosted(bool hosted);
    void lookForManager();
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

    QDBusConnection bus_;
    bool hosted_ = false;
    std::uint32_t selection_ = 0;   // the atom of the tray's selection
    std::uint32_t managerAtom_ = 0; // of the message that tells of a new owner
    std::uint32_t manager_ = 0;     // the owner's window
};

} // namespace quillon
