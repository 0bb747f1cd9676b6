// The store's shortcut, which is announced when it is pressed.
#include "desktop/Hotkey.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"
#include "state/Store.h"

#include <QPointer>

namespace quillon {

namespace {

/// The command for a key binding of the user's own that was last copied.
constexpr const char* copiedCommandKey = "ShortcutCommandCopied";

} // namespace

void Store::registerShortcut() {
    const QPointer<Store> store{this};
    HotKeyState state = hotkey_.registerChoice(
        config_.shortcut,
        [store](const std::string& activation) {
            if (store) Q_EMIT store->shortcutPressed(activation);
        },
        [store](const HotKeyState& now) {
            if (store) store->publish(store->shortcut_, now);
        });
    publish(shortcut_, std::move(state));
}

void Store::takeShortcutOffer() {
    if (shortcut_.offer != HotKeyState::Offer::copyCommand) return hotkey_.takeOffer();
    Q_EMIT objectWillChange();
    platform_.defaults.setText(copiedCommandKey, shortcut_.command);
}

bool Store::shortcutCommandCopied() const {
    return shortcut_.offer == HotKeyState::Offer::copyCommand &&
           platform_.defaults.text(copiedCommandKey) == shortcut_.command;
}

} // namespace quillon
