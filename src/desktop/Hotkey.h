#pragma once

#include "platform/HotKeys.h"
#include "state/ShortcutChoice.h"

#include <QObject>

#include <functional>
#include <memory>

namespace quillon {

/// The one combination of keys that does something wherever the user is. Main thread only; it
/// lives no longer than the hot keys that it is made of.
class Hotkey : public QObject {
public:
    explicit Hotkey(HotKeys& hotKeys) : hotKeys_{hotKeys} {}

    /// Registers the choice in place of the one before, which ends even when the new one is
    /// refused. `action` is called from the event loop at each press. False when the choice was
    /// refused.
    [[nodiscard]] bool registerChoice(ShortcutChoice choice, std::function<void()> action);

private:
    void installHandler();
    void act() const;

    HotKeys& hotKeys_;
    std::unique_ptr<HotKeys::Registration> ref_;
    std::function<void()> action_;
    bool handlerInstalled_ = false;
};

} // namespace quillon
