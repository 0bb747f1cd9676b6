#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

#include <cstdint>
#include <set>

namespace quillon {

/// Events of the X server that Qt has no signals for, from the connection that Qt's windows are on.
/// There is one object for the whole application, because a native event filter that keeps an event
/// from Qt also keeps it from every other filter.
class X11Events : public QObject, private QAbstractNativeEventFilter {
    Q_OBJECT

public:
    /// The application's object, which is made at the first call; null while there is no
    /// application, and where Qt is not on an X server.
    [[nodiscard]] static X11Events* ofApplication();

    /// Has ownerChanged() emitted for this selection from now on.
    void followOwner(std::uint32_t selection);

Q_SIGNALS:
    // Both are emitted while Qt handles the event, so slots must only take note.
    /// The selection's new owner is this window; 0 when it has none any more.
    void ownerChanged(std::uint32_t selection, std::uint32_t window);
    /// Only for windows whose property changes Qt's connection listens to.
    void propertyChanged(std::uint32_t window, std::uint32_t property);

private:
    explicit X11Events(QObject* application);

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

    int firstXfixesEvent_ = 0; ///< 0 when the server lacks the XFixes extension
    std::set<std::uint32_t> followed_;
    std::uint32_t compositingManager_; ///< the selection that Qt follows itself
};

} // namespace quillon
