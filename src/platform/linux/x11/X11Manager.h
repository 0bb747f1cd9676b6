#pragma once

#include "platform/linux/x11/X11Connection.h"

#include <QAbstractNativeEventFilter>
#include <QObject>

#include <string_view>

namespace quillon {

/// Whoever manages something on the X server that Qt has connected to, such as the system tray or
/// the common settings: the owner of a manager selection (ICCCM, 2.8), with one property of its
/// window. It may come late, go and come back. There is none on other displays.
class X11Manager : public QObject, private QAbstractNativeEventFilter {
    Q_OBJECT

public:
    /// `selection` without the number of the screen, as in "_NET_SYSTEM_TRAY".
    X11Manager(std::string_view selection, std::string_view property);
    ~X11Manager() override;

    [[nodiscard]] bool present() const { return window_ != XCB_WINDOW_NONE; }
    /// The property's value of this type, up to as many units of four bytes; null when there is
    /// none.
    [[nodiscard]] XcbPointer<xcb_get_property_reply_t> property(xcb_atom_t type,
                                                                std::uint32_t length) const;
    /// Has it tell when it ends and when the property changes. To be called again where others have
    /// asked for less on the same connection.
    void listen() const;

Q_SIGNALS:
    /// Another manager has come, or it has gone. From the event loop, as is the next.
    void changed();
    void propertyChanged();

private:
    void look();
    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

    xcb_atom_t selection_ = XCB_ATOM_NONE;
    xcb_atom_t property_ = XCB_ATOM_NONE;
    xcb_atom_t coming_ = XCB_ATOM_NONE; // the message that tells of a new manager
    xcb_window_t window_ = XCB_WINDOW_NONE;
};

} // namespace quillon
