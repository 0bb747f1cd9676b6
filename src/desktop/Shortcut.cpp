// The store's shortcut: pressing it sends the clipboard.
#include "desktop/Hotkey.h"
#include "platform/Platform.h"
#include "state/Store.h"

#include <QPointer>

namespace quillon {

namespace {

QCoro::Task<> send(QPointer<Store> store) {
    if (!store) co_return;
    co_await store->sendClipboard("shortcut");
}

} // namespace

void Store::registerShortcut() {
    if (!hotkey_) hotkey_ = std::make_shared<Hotkey>(platform_.hotKeys);
    const bool accepted =
        hotkey_->registerChoice(config_.shortcut, [store = QPointer{this}] { send(store); });
    publish(shortcutTaken_, !accepted);
}

} // namespace quillon
