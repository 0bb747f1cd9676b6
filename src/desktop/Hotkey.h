#pragma once

#include "platform/HotKeys.h"
#include "state/ShortcutChoice.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace quillon {

/// The one combination of keys that does something wherever the user is. Main thread only; it
/// lives no longer than the hot keys that it is made of.
class Hotkey : public QObject {
public:
    explicit Hotkey(HotKeys& hotKeys) : hotKeys_{hotKeys} {}

    /// Registers the choice in place of the one before, which ends even when the new one is
    /// refused. `action` is called from the event loop at each press. False when the choice was
    /// refused. `changed` is called when a choice that was accepted stops working (false), and when
    /// it works again (true).
    [[nodiscard]] bool registerChoice(ShortcutChoice choice, std::function<void()> action,
                                      std::function<void(bool works)> changed = {});

private:
    void installHandler();
    void tell(PhysicalKey key, bool works) const;
    void act() const;

    HotKeys& hotKeys_;
    std::unique_ptr<HotKeys::Registration> ref_;
    std::optional<PhysicalKey> key_;
    std::function<void()> action_;
    std::function<void(bool)> changed_;
    bool handlerInstalled_ = false;
};

} // namespace quillon
