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

HotKeyState Hotkey::registerChoice(ShortcutChoice choice, Action action, Changed changed) {
    ref_.reset();
    action_ = std::move(action);
    changed_ = std::move(changed);
    installHandler();
    key_ = physicalKeys.at(static_cast<std::size_t>(choice));
    ref_ = hotKeys_.registerHotKey(*key_);
    return ref_ ? ref_->state() : HotKeyState{.kind = HotKeyState::Kind::taken};
}

void Hotkey::takeOffer() {
    if (ref_) ref_->takeOffer();
}

void Hotkey::installHandler() {
    if (handlerInstalled_) return;
    // The hot keys keep the handler for as long as they live.
    hotKeys_.installHandler([self = QPointer{this}](const std::string& activation) {
        if (!self) return;
        QMetaObject::invokeMethod(
            self.data(), [self, activation] { self->act(activation); }, Qt::QueuedConnection);
    });
    hotKeys_.observe([self = QPointer{this}](PhysicalKey key, const HotKeyState& state) {
        if (self) self->tell(key, state);
    });
    handlerInstalled_ = true;
}

void Hotkey::tell(PhysicalKey key, const HotKeyState& state) const {
    if (ref_ && key == key_ && changed_) changed_(state);
}

void Hotkey::act(const std::string& activation) const {
    // A copy, since the action may well register another.
    const auto action = action_;
    if (action) action(activation);
}

} // namespace quillon
