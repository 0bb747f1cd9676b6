#pragma once

#include <functional>
#include <memory>

namespace quillon {

/// A key by its place on the keyboard, independent of the layout. The names are those of a US
/// keyboard.
enum class PhysicalKey { v, p, c };

/// Keys that reach the program no matter which window has the focus.
class HotKeys {
public:
    /// A hot key that works until this is destroyed.
    class Registration {
    public:
        virtual ~Registration() = default;
    };

    virtual ~HotKeys() = default;

    /// Sets the function that is called on the main thread once for each press of a registered hot
    /// key, however long the key is held. Call this once.
    virtual void installHandler(std::function<void()> handler) = 0;

    /// Sets the function that is called on the main thread when a registered hot key stops working,
    /// because the keyboard has changed and another program has the key that it is now (false), and
    /// when a later change brings it back (true). Call this once.
    virtual void observe(std::function<void(PhysicalKey key, bool works)> observer) = 0;

    /// Makes the key a hot key while Control and Alt are held, and no other modifier but locks.
    /// Null if that was refused, for example because another program has it.
    [[nodiscard]] virtual std::unique_ptr<Registration> registerHotKey(PhysicalKey key) = 0;
};

/// Refuses every hot key; used where the desktop offers none.
class NoHotKeys final : public HotKeys {
public:
    void installHandler(std::function<void()> /*handler*/) override {}
    void observe(std::function<void(PhysicalKey, bool)> /*observer*/) override {}
    [[nodiscard]] std::unique_ptr<Registration> registerHotKey(PhysicalKey /*key*/) override {
        return nullptr;
    }
};

} // namespace quillon
