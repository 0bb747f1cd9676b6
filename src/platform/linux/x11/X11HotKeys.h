#pragma once

#include "platform/HotKeys.h"
#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/X11Keyboard.h"

#include <QSocketNotifier>

#include <map>
#include <optional>
#include <vector>

namespace quillon {

/// Hot keys as passive grabs on the root windows of an X server, whatever layout the keyboard has
/// and whichever of its locks are on. Lives on the main thread and outlives its registrations. Once
/// the server is gone, nothing is pressed any more and every registration is refused.
class X11HotKeys final : public HotKeys {
public:
    /// Connects to `display` (null: what $DISPLAY names); null when there is no such display, or
    /// its server has no XKB.
    [[nodiscard]] static std::unique_ptr<X11HotKeys> open(const char* display);

    X11HotKeys(const X11HotKeys&) = delete;
    X11HotKeys& operator=(const X11HotKeys&) = delete;
    ~X11HotKeys() override = default;

    void installHandler(std::function<void()> handler) override;
    /// Waits for the server to answer. Refused, too, while there is a registration of that key.
    [[nodiscard]] std::unique_ptr<Registration> registerHotKey(PhysicalKey key) override;

private:
    class Grab;

    X11HotKeys(std::unique_ptr<X11Connection> connection, X11Keyboard keyboard);

    [[nodiscard]] bool grab(PhysicalKey key);
    void ungrab(PhysicalKey key);
    void unregister(PhysicalKey key);
    /// Takes up what has become of the keyboard.
    void followKeyboard();

    void takeEvents();
    void takeEventsSoon();
    /// True when the event tells that the keyboard has changed.
    [[nodiscard]] bool take(const xcb_generic_event_t& event);
    void pressed(const xcb_key_press_event_t& event);
    void released(const xcb_key_press_event_t& event);

    std::unique_ptr<X11Connection> connection_;
    std::vector<xcb_window_t> roots_;
    X11Keyboard keyboard_;
    std::uint8_t xkbEvent_;
    std::function<void()> handler_;
    /// The keys that are registered, and whether they are grabbed: another program may have been
    /// quicker where a new layout has put them.
    std::map<PhysicalKey, bool> keys_;
    std::optional<xcb_keycode_t> held_;
    /// When the held key was last heard of, on the server's clock in milliseconds.
    xcb_timestamp_t lastPress_ = 0;
    QSocketNotifier notifier_;
};

} // namespace quillon
