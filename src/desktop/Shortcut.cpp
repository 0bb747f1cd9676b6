// The store's shortcut, which is announced when it is pressed.
#include "desktop/Hotkey.h"
#include "state/Store.h"

#include <QPointer>

namespace quillon {

void Store::registerShortcut() {
    const bool accepted = hotkey_.registerChoice(config_.shortcut, [store = QPointer{this}] {
        if (store) Q_EMIT store->shortcutPressed();
    });
    publish(shortcutTaken_, !accepted);
}

} // namespace quillon
