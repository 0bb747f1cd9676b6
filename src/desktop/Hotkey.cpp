#include "desktop/Hotkey.h"

#include <QMetaObject>
#include <QPointer>

#include <array>
#include <utility>

namespace quillon {

namespace {

constexpr std::array<PhysicalKey, allShortcutChoices.size()> physicalKeys{
    PhysicalKey::v, PhysicalKey::p, PhysicalKey::c};

} // namespace

bool Hotkey::registerChoice(ShortcutChoice choice, std::function<void()> action) {
    ref_.reset();
    action_ = std::move(action);
    installHandler();
    ref_ = hotKeys_.registerHotKey(physicalKeys.at(static_cast<std::size_t>(choice)));
    return ref_ != nullptr;
}

void Hotkey::installHandler() {
    if (handlerInstalled_) return;
    // The hot keys keep the handler for as long as they live.
    hotKeys_.installHandler([self = QPointer{this}] {
        if (!self) return;
        QMetaObject::invokeMethod(
            self.data(), [self] { self->act(); }, Qt::QueuedConnection);
    });
    handlerInstalled_ = true;
}

void Hotkey::act() const {
    // A copy, since the action may well register another.
    const auto action = action_;
    if (action) action();
}

} // namespace quillon
