#pragma once

#include "platform/HotKeys.h"
#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/X11Keyboard.h"

#include <QSocketNotifier>

#include <map>
#include <optional>
#include <vector>

namespace quillon {

/// Hot keys as passive grabs on an X server's root windows. They work with any keyboard layout and
/// any locks on. Lives on the main thread and outlives its registrations. Once the server is gone,
/// nothing is pressed any more and every registration is refused.
class X11HotKeys final : public HotKeys {
public:
    /// Connects to `display` (null: what $DISPLAY names); null when there is no such display, or
    /// its server has no XKB.
    [[nodiscard]] static std::unique_ptr<X11HotKeys> open(const char* display);

    void installHandler(std::function<void(const std::string&)> handler) override;
    /// Of the states, X11 knows bound and taken.
    void observe(std::function<void(PhysicalKey, const HotKeyState&)> observer) override;
    /// Waits for the server's answer. Also refuses a key that is registered already.
    [[nodiscard]] std::unique_ptr<Registration> registerHotKey(PhysicalKey key) override;

private:
    class Grab;

    X11HotKeys(std::unique_ptr<X11Connection> connection, X11Keyboard keyboard);

    [[nodiscard]] bool grab(PhysicalKey key);
    void ungrab(PhysicalKey key);
    /// Reads the keyboard again and moves the grabs to where the keys are now. Tells of each that
    /// has been lost or has come back.
    void followKeyboard();

    void takeEvents();
    void takeEventsSoon();
    /// True if the event announces a change of the keyboard.
    [[nodiscard]] bool take(const xcb_generic_event_t& event);
    void pressed(const xcb_key_press_event_t& event);

    std::unique_ptr<X11Connection> connection_;
    std::vector<xcb_window_t> roots_;
    X11Keyboard keyboard_;
    std::uint8_t xkbEvent_;
    std::function<void(const std::string&)> handler_;
    std::function<void(PhysicalKey, const HotKeyState&)> observer_;
    /// The registered keys, and whether they are grabbed. After a change of layout, another program
    /// may hold a key's new combination.
    std::map<PhysicalKey, bool> keys_;
    std::optional<xcb_keycode_t> held_;
    /// The time of the held key's last event, on the server's clock in milliseconds.
    xcb_timestamp_t lastPress_ = 0;
    QSocketNotifier notifier_;
};

} // namespace quillon
