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

bool Hotkey::registerChoice(ShortcutChoice choice, std::function<void()> action,
                            std::function<void(bool)> changed) {
    ref_.reset();
    action_ = std::move(action);
    changed_ = std::move(changed);
    installHandler();
    key_ = physicalKeys.at(static_cast<std::size_t>(choice));
    ref_ = hotKeys_.registerHotKey(*key_);
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
    hotKeys_.observe([self = QPointer{this}](PhysicalKey key, bool works) {
        if (self) self->tell(key, works);
    });
    handlerInstalled_ = true;
}

void Hotkey::tell(PhysicalKey key, bool works) const {
    if (ref_ && key == key_ && changed_) changed_(works);
}

void Hotkey::act() const {
    // A copy, since the action may well register another.
    const auto action = action_;
    if (action) action();
}

} // namespace quillon
