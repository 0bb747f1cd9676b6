#pragma once

#include <functional>
#include <memory>

namespace quillon {

/// A key by its place on the keyboard, whatever the layout makes of it; named for what stands there
/// on a US keyboard.
enum class PhysicalKey { v, p, c };

/// Keys that reach the program whichever window has the focus.
class HotKeys {
public:
    /// A hot key that works until this is destroyed.
    class Registration {
    public:
        Registration() = default;
        Registration(const Registration&) = delete;
        Registration& operator=(const Registration&) = delete;
        virtual ~Registration() = default;
    };

    virtual ~HotKeys() = default;

    /// Sets what is called, on the main thread, each time a registered hot key is pressed: once for
    /// each press, however long the key is held. To be called once.
    virtual void installHandler(std::function<void()> handler) = 0;

    /// Makes the key a hot key while Control and Alt are held, and no other modifier but locks.
    /// Null when that was refused, as when another program has it.
    [[nodiscard]] virtual std::unique_ptr<Registration> registerHotKey(PhysicalKey key) = 0;
};

/// Hot keys where there is no keyboard to share: each is refused.
class NoHotKeys final : public HotKeys {
public:
    void installHandler(std::function<void()> /*handler*/) override {}
    [[nodiscard]] std::unique_ptr<Registration> registerHotKey(PhysicalKey /*key*/) override {
        return nullptr;
    }
};

} // namespace quillon
