#include "platform/linux/x11/X11HotKeys.h"

#include "platform/linux/x11/XcbXkb.h"

#include <QMetaObject>

#include <algorithm>
#include <utility>

namespace quillon {

namespace {

constexpr xcb_xkb_device_spec_t coreKeyboard = XCB_XKB_ID_USE_CORE_KBD;

std::vector<xcb_window_t> rootWindows(xcb_connection_t* connection) {
    std::vector<xcb_window_t> roots;
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (; screens.rem > 0; xcb_screen_next(&screens))
        roots.push_back(screens.data->root);
    return roots;
}

/// Whether the server has XKB. Waits for its answer.
bool hasXkb(xcb_connection_t* connection) {
    const auto cookie =
        xcb_xkb_use_extension(connection, XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION);
    const XcbPointer<xcb_xkb_use_extension_reply_t> reply{
        xcb_xkb_use_extension_reply(connection, cookie, nullptr)};
    return reply && reply->supported;
}

/// Asks the server for events about changes of the keyboard, and to repeat the press of a held key
/// without releases in between.
void prepare(xcb_connection_t* connection) {
    constexpr std::uint16_t changes =
        XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY |
        XCB_XKB_EVENT_TYPE_NAMES_NOTIFY | XCB_XKB_EVENT_TYPE_CONTROLS_NOTIFY;
    constexpr std::uint16_t parts =
        XCB_XKB_MAP_PART_KEY_SYMS | XCB_XKB_MAP_PART_MODIFIER_MAP | XCB_XKB_MAP_PART_VIRTUAL_MODS;
    xcb_xkb_select_events(connection, coreKeyboard, changes, 0, changes, parts, parts, nullptr);
    constexpr std::uint32_t flag = XCB_XKB_PER_CLIENT_FLAG_DETECTABLE_AUTO_REPEAT;
    const auto cookie = xcb_xkb_per_client_flags(connection, coreKeyboard, flag, flag, 0, 0, 0);
    xcb_discard_reply(connection, cookie.sequence);
}

} // namespace

/// Keeps one key grabbed.
class X11HotKeys::Grab final : public Registration {
public:
    Grab(X11HotKeys& owner, PhysicalKey key) : owner_{owner}, key_{key} {}
    Grab(const Grab&) = delete;
    Grab& operator=(const Grab&) = delete;
    ~Grab() override {
        owner_.ungrab(key_);
        owner_.keys_.erase(key_);
    }

private:
    X11HotKeys& owner_;
    PhysicalKey key_;
};

std::unique_ptr<X11HotKeys> X11HotKeys::open(const char* display) {
    auto connection = X11Connection::open(display);
    if (!connection || !hasXkb(connection->get())) return nullptr;
    prepare(connection->get());
    auto keyboard = X11Keyboard::read(connection->get());
    if (!keyboard) return nullptr;
    return std::unique_ptr<X11HotKeys>{new X11HotKeys{std::move(connection), std::move(*keyboard)}};
}

X11HotKeys::X11HotKeys(std::unique_ptr<X11Connection> connection, X11Keyboard keyboard)
    : connection_{std::move(connection)},
      roots_{rootWindows(connection_->get())},
      keyboard_{std::move(keyboard)},
      xkbEvent_{xcb_get_extension_data(connection_->get(), &xcb_xkb_id)->first_event},
      notifier_{xcb_get_file_descriptor(connection_->get()), QSocketNotifier::Read} {
    QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this] { takeEvents(); });
    takeEventsSoon();
}

void X11HotKeys::installHandler(std::function<void(const std::string&)> handler) {
    handler_ = std::move(handler);
}

void X11HotKeys::observe(std::function<void(PhysicalKey, const HotKeyState&)> observer) {
    observer_ = std::move(observer);
}

std::unique_ptr<HotKeys::Registration> X11HotKeys::registerHotKey(PhysicalKey key) {
    // The server would let this client grab the same key twice, and the first release would end
    // both grabs.
    if (keys_.contains(key)) return nullptr;
    followKeyboard();
    takeEventsSoon();
    if (!grab(key)) return nullptr;
    keys_[key] = true;
    return std::make_unique<Grab>(*this, key);
}

bool X11HotKeys::grab(PhysicalKey key) {
    xcb_connection_t* const connection = connection_->get();
    std::vector<xcb_void_cookie_t> asked;
    for (const xcb_window_t root : roots_) {
        for (const std::uint16_t modifiers : keyboard_.modifiers) {
            asked.push_back(xcb_grab_key_checked(connection, 0, root, modifiers,
                                                 keyboard_.code(key), XCB_GRAB_MODE_ASYNC,
                                                 XCB_GRAB_MODE_ASYNC));
        }
    }
    bool refused = false;
    for (const xcb_void_cookie_t cookie : asked) {
        const XcbPointer<xcb_generic_error_t> error{xcb_request_check(connection, cookie)};
        refused |= error != nullptr;
    }
    if (refused) ungrab(key);
    // Requests to a dead server give no error.
    return !refused && connection_->alive();
}

void X11HotKeys::ungrab(PhysicalKey key) {
    for (const xcb_window_t root : roots_) {
        for (const std::uint16_t modifiers : keyboard_.modifiers)
            xcb_ungrab_key(connection_->get(), keyboard_.code(key), root, modifiers);
    }
    xcb_flush(connection_->get());
}

void X11HotKeys::followKeyboard() {
    auto now = X11Keyboard::read(connection_->get());
    if (!now) return;
    const bool moved = now->codes != keyboard_.codes || now->modifiers != keyboard_.modifiers;
    if (moved) {
        for (const auto& [key, grabbed] : keys_)
            ungrab(key);
    }
    keyboard_ = std::move(*now);
    std::map<PhysicalKey, bool> changed;
    for (auto& [key, grabbed] : keys_) {
        const bool before = std::exchange(grabbed, (grabbed && !moved) || grab(key));
        if (grabbed != before) changed[key] = grabbed;
    }
    // The observer may register other keys.
    using enum HotKeyState::Kind;
    for (const auto& [key, works] : changed) {
        if (observer_) observer_(key, {.kind = works ? bound : taken});
    }
}

void X11HotKeys::takeEvents() {
    bool keyboardChanged = false;
    while (XcbPointer<xcb_generic_event_t> event{xcb_poll_for_event(connection_->get())})
        keyboardChanged |= take(*event);
    // A dead server's socket stays readable for ever.
    if (!connection_->alive()) return notifier_.setEnabled(false);
    if (!keyboardChanged) return;
    followKeyboard();
    takeEventsSoon();
}

void X11HotKeys::takeEventsSoon() {
    // Events that arrived while an answer was awaited are in xcb's queue, and the socket does not
    // announce them.
    QMetaObject::invokeMethod(
        &notifier_, [this] { takeEvents(); }, Qt::QueuedConnection);
}

bool X11HotKeys::take(const xcb_generic_event_t& event) {
    const int type = event.response_type & eventTypeMask;
    const auto& key = reinterpret_cast<const xcb_key_press_event_t&>(event);
    if (type == XCB_KEY_PRESS) pressed(key);
    if (type == XCB_KEY_RELEASE && held_ == key.detail) held_.reset();
    return type == xkbEvent_ || type == XCB_MAPPING_NOTIFY;
}

void X11HotKeys::pressed(const xcb_key_press_event_t& event) {
    // While a hot key is held, the presses of all other keys arrive here too.
    const bool ours = std::ranges::any_of(
        keys_, [&](const auto& entry) { return keyboard_.code(entry.first) == event.detail; });
    if (!ours) return;
    // A key that has not repeated in time was released, even if there was no event for that.
    const bool repeats = held_ == event.detail && event.time - lastPress_ <= keyboard_.repeatPause;
    held_ = event.detail;
    lastPress_ = event.time;
    if (!repeats && handler_) handler_({});
}

} // namespace quillon
