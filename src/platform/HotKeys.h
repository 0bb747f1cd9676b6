#pragma once

#include <functional>
#include <memory>
#include <string>

namespace quillon {

/// A key by its place on the keyboard, independent of the layout. The names are those of a US
/// keyboard.
enum class PhysicalKey { v, p, c };

/// How a shortcut comes to the program.
enum class ShortcutWay {
    x11,            ///< the program grabs the keys
    portal,         ///< the desktop's portal binds them, and asks the user
    gnomeBinding,   ///< a key binding in GNOME's settings, which the user has the program add
    compositorLine, ///< a line in the compositor's own configuration, which the user adds
    none,           ///< the user binds the program's command where the desktop has a place for it
};

/// What has become of a hot key.
struct HotKeyState {
    enum class Kind {
        asking,      ///< the desktop has not answered yet; it may be asking the user
        bound,       ///< it works
        unassigned,  ///< the desktop knows it, but has given it no keys
        taken,       ///< another program has the keys
        refused,     ///< the user declined it
        unavailable, ///< the desktop does not offer it, or not at the moment
    };
    /// What the user can do about it.
    enum class Offer {
        nothing,
        askAgain,   ///< have the desktop ask once more
        configure,  ///< open the desktop's own dialog for it
        addBinding, ///< add a key binding to the desktop's settings
        copyCommand ///< copy `command` to where the desktop has its key bindings
    };

    Kind kind = Kind::bound;
    ShortcutWay way = ShortcutWay::x11;
    Offer offer = Offer::nothing;
    /// The keys in the desktop's own words, where it told; from outside.
    std::string trigger{};
    /// The line for the compositor's configuration (ShortcutWay::compositorLine), or the command
    /// line that sends.
    std::string command{};
    /// The file that the line belongs into.
    std::string place{};

    bool operator==(const HotKeyState&) const = default;
};

/// Keys that reach the program no matter which window has the focus.
class HotKeys {
public:
    /// A hot key that works, or waits to work, until this is destroyed.
    class Registration {
    public:
        virtual ~Registration() = default;
        [[nodiscard]] virtual HotKeyState state() const { return {}; }
        /// Does what the state offers, save what only the user can do.
        virtual void takeOffer() {}
    };

    virtual ~HotKeys() = default;

    /// Sets the function that is called on the main thread once for each press of a registered hot
    /// key, however long the key is held. It is given the desktop's permission to bring a window to
    /// the front (an activation token), empty where there is none. Call this once.
    virtual void installHandler(std::function<void(const std::string& activation)> handler) = 0;

    /// Sets the function that is called on the main thread whenever the state of a registered hot
    /// key has changed: the desktop or the user has answered, or the keyboard has changed and
    /// another program has the key that it is now. Call this once.
    virtual void
    observe(std::function<void(PhysicalKey key, const HotKeyState& state)> observer) = 0;

    /// Makes the key a hot key while Control and Alt are held, and no other modifier but locks, or
    /// begins to ask the desktop for it. Null if another program has it.
    [[nodiscard]] virtual std::unique_ptr<Registration> registerHotKey(PhysicalKey key) = 0;
};

/// Has no hot key to give; used where the desktop offers none.
class NoHotKeys final : public HotKeys {
public:
    void installHandler(std::function<void(const std::string&)> /*handler*/) override {}
    void observe(std::function<void(PhysicalKey, const HotKeyState&)> /*observer*/) override {}
    [[nodiscard]] std::unique_ptr<Registration> registerHotKey(PhysicalKey /*key*/) override {
        return std::make_unique<Unavailable>();
    }

private:
    struct Unavailable final : Registration {
        [[nodiscard]] HotKeyState state() const override {
            return {.kind = HotKeyState::Kind::unavailable, .way = ShortcutWay::none};
        }
    };
};

} // namespace quillon
