// The store's shortcut, which is announced when it is pressed.
#include "desktop/Hotkey.h"
#include "state/Store.h"

#include <QPointer>

namespace quillon {

void Store::registerShortcut() {
    const QPointer<Store> store{this};
    const bool accepted = hotkey_.registerChoice(
        config_.shortcut,
        [store] {
            if (store) Q_EMIT store->shortcutPressed();
        },
        [store](bool works) {
            if (store) store->publish(store->shortcutTaken_, !works);
        });
    publish(shortcutTaken_, !accepted);
}

} // namespace quillon
