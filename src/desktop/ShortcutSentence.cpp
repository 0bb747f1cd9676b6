#include "desktop/ShortcutSentence.h"

#include "base/Translate.h"
#include "state/ShownKeys.h"

#include <algorithm>
#include <optional>

namespace quillon {

namespace {

using enum HotKeyState::Kind;
using Kind = HotKeyState::Kind;
using Offer = HotKeyState::Offer;

/// %1 are the keys of the choice, %2 those that the desktop names, %3 is the file for the command.
/// Of the rows that fit, the first one counts.
struct Row {
    Kind kind;
    std::optional<ShortcutWay> way;
    std::optional<Offer> offer;
    const char* settings;
    const char* panel;
};

constexpr const char* showsHow =
    QT_TRANSLATE_NOOP("Shortcut", "The shortcut is not set up yet. Settings shows how.");

constexpr Row rows[]{
    {bound, ShortcutWay::x11, {}, "", ""},
    {bound,
     {},
     {},
     QT_TRANSLATE_NOOP("Shortcut", "On this desktop the shortcut is %2."),
     QT_TRANSLATE_NOOP("Shortcut", "On this desktop the shortcut is %2.")},
    {taken, {}, {}, "", ""},
    {asking,
     {},
     {},
     QT_TRANSLATE_NOOP("Shortcut", "Your desktop is setting up %1. If it asks you, answer there."),
     QT_TRANSLATE_NOOP("Shortcut", "Your desktop is setting up %1. If it asks you, answer there.")},
    {unassigned,
     {},
     {},
     QT_TRANSLATE_NOOP("Shortcut", "Your desktop knows the shortcut, but gives it no keys yet."),
     QT_TRANSLATE_NOOP("Shortcut", "Your desktop gives the shortcut no keys yet. See Settings.")},
    {refused,
     {},
     {},
     QT_TRANSLATE_NOOP("Shortcut", "You declined the shortcut when your desktop asked."),
     QT_TRANSLATE_NOOP("Shortcut", "You declined the shortcut. Settings can ask again.")},
    {unavailable,
     ShortcutWay::portal,
     {},
     QT_TRANSLATE_NOOP("Shortcut", "Your desktop's shortcuts have stopped. %1 works again as soon "
                                   "as they are back."),
     QT_TRANSLATE_NOOP("Shortcut", "Your desktop's shortcuts have stopped. %1 works again as soon "
                                   "as they are back.")},
    {unavailable,
     ShortcutWay::gnomeBinding,
     {},
     QT_TRANSLATE_NOOP("Shortcut", "Your desktop gives programs no shortcuts. Quillon can add %1 "
                                   "to your keyboard settings, where you can change it."),
     QT_TRANSLATE_NOOP("Shortcut", "The shortcut is not set up yet. Settings can add it.")},
    {unavailable,
     ShortcutWay::compositorLine,
     {},
     QT_TRANSLATE_NOOP("Shortcut", "Your desktop keeps shortcuts in a file of its own. For %1, add "
                                   "this line to %3:"),
     showsHow},
    {unavailable,
     {},
     Offer::askAgain,
     QT_TRANSLATE_NOOP("Shortcut", "Your desktop has not set up %1. Ask it again, or bind this "
                                   "command in its keyboard settings:"),
     showsHow},
    {unavailable,
     {},
     Offer::copyCommand,
     QT_TRANSLATE_NOOP("Shortcut", "Your desktop gives programs no shortcuts. For %1, bind this "
                                   "command in its keyboard settings:"),
     showsHow},
    {unavailable,
     {},
     {},
     QT_TRANSLATE_NOOP("Shortcut", "This desktop gives programs no shortcuts."),
     QT_TRANSLATE_NOOP("Shortcut", "This desktop gives programs no shortcuts.")},
};

bool fits(const Row& row, const HotKeyState& state) {
    return row.kind == state.kind && row.way.value_or(state.way) == state.way &&
           row.offer.value_or(state.offer) == state.offer;
}

} // namespace

std::string shortcutSentence(const HotKeyState& state, ShortcutChoice choice, ShortcutPlace place) {
    // That it works is told by silence where the desktop does not say on which keys.
    if (state.kind == bound && state.trigger.empty()) return {};
    const auto row = std::ranges::find_if(rows, [&](const Row& each) { return fits(each, state); });
    const char* const text = place == ShortcutPlace::settings ? row->settings : row->panel;
    if (!*text) return {};
    return filled(translate("Shortcut", text), {shownKeysText(choice), state.trigger, state.place});
}

bool wantsAttention(const HotKeyState& state) {
    return state.kind == unassigned || state.kind == unavailable;
}

} // namespace quillon
