// The store's opening at login, which the desktop alone keeps.
#include "platform/LoginItem.h"
#include "platform/Platform.h"
#include "state/Store.h"

namespace quillon {

bool Store::launchAtLogin() const {
    return platform_.loginItem.status() == LoginItem::Status::enabled;
}

void Store::setLaunchAtLogin(bool opens) {
    if (opens) {
        platform_.loginItem.registerItem();
    } else {
        platform_.loginItem.unregisterItem();
    }
    Q_EMIT launchAtLoginChanged(opens);
    // Views show what the desktop says now, whether this worked or not.
    Q_EMIT objectWillChange();
}

} // namespace quillon
