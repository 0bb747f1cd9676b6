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
    // Whether it worked or not, views ask again.
    Q_EMIT objectWillChange();
}

} // namespace quillon
