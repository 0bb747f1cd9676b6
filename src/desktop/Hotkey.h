#pragma once

#include "platform/HotKeys.h"
#include "state/ShortcutChoice.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace quillon {

/// The one combination of keys that does something wherever the user is. Main thread only; it
/// lives no longer than the hot keys that it is made of.
class Hotkey : public QObject {
public:
    explicit Hotkey(HotKeys& hotKeys) : hotKeys_{hotKeys} {}

    /// At a press, with the desktop's permission to bring a window to the front.
    using Action = std::function<void(const std::string& activation)>;
    using Changed = std::function<void(const HotKeyState& state)>;

    /// Registers the choice in place of the one before, which ends whatever becomes of the new one,
    /// and gives its state. `action` is called from the event loop at each press, and `changed`
    /// whenever the state is another.
    [[nodiscard]] HotKeyState registerChoice(ShortcutChoice choice, Action action,
                                             Changed changed = {});
    /// Does what the state of the choice offers.
    void takeOffer();

private:
    void installHandler();
    void tell(PhysicalKey key, const HotKeyState& state) const;
    void act(const std::string& activation) const;

    HotKeys& hotKeys_;
    std::unique_ptr<HotKeys::Registration> ref_;
    std::optional<PhysicalKey> key_;
    Action action_;
    Changed changed_;
    bool handlerInstalled_ = false;
};

} // namespace quillon
