// Session, display, clipboard, shortcut, banner and icon.
#include "doctor/Verdicts.h"
#include "state/ShownKeys.h"

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <string_view>

namespace quillon {

namespace {

using enum FindingState;

/// Enough to tell what was copied; some programs offer dozens of formats.
constexpr std::size_t mostFormats = 12;
constexpr std::size_t longestFormat = 80;

bool isWayland(const Facts& facts) {
    return facts.system && facts.system->wayland;
}

Presence xServer(const Facts& facts) {
    return facts.xServer ? facts.xServer->presence : Presence::silent;
}

Presence compositor(const Facts& facts) {
    return facts.compositor ? facts.compositor->presence : Presence::silent;
}

bool hasDisplay(const Facts& facts) {
    return displayVerdict(facts, Names::hidden).state != failed;
}

Verdict withoutDisplay() {
    return {unknown, {QT_TRANSLATE_NOOP("Doctor", "not looked at, for the display is missing")}};
}

std::string keys(const Facts& facts) {
    return shownKeysText(facts.config.shortcut);
}

/// The name of a format without its parameters, which can hold names of files.
std::string formatName(const std::string& format) {
    std::string name = format.substr(0, std::min(format.find(';'), longestFormat));
    const auto plain = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               std::string_view{"/_.+-"}.find(c) != std::string_view::npos;
    };
    const auto end = std::ranges::find_if_not(name, plain);
    return {name.begin(), end};
}

std::string formatNames(const std::vector<std::string>& formats) {
    std::string text;
    for (std::size_t index = 0; index < std::min(formats.size(), mostFormats); ++index)
        text += (index ? ", " : "") + formatName(formats[index]);
    return formats.size() > mostFormats ? text + ", …" : text;
}

/// In the order of ClipboardWay.
constexpr std::array<const char*, 4> clipboardWays{"ext-data-control", "wlr-data-control", "X11",
                                                   ""};

/// In the order of HotKeyState::Kind.
constexpr VerdictRow shortcutRows[]{
    {warning, QT_TRANSLATE_NOOP("Doctor", "the desktop has not answered yet"),
     QT_TRANSLATE_NOOP("Doctor", "If it asks you, answer there.")},
    {ok, QT_TRANSLATE_NOOP("Doctor", "%1 works"), ""},
    {failed, QT_TRANSLATE_NOOP("Doctor", "the desktop knows it, but gives it no keys"),
     QT_TRANSLATE_NOOP("Doctor", "Choose keys in the settings, under General.")},
    {failed, QT_TRANSLATE_NOOP("Doctor", "another program or the desktop itself has %1"),
     QT_TRANSLATE_NOOP("Doctor", "Choose another in the settings, under General, or free it in the "
                                 "desktop's keyboard settings.")},
    {failed, QT_TRANSLATE_NOOP("Doctor", "it was declined when the desktop asked"),
     QT_TRANSLATE_NOOP("Doctor", "Have it ask again in the settings, under General.")},
    {warning, QT_TRANSLATE_NOOP("Doctor", "the desktop gives programs no shortcuts"),
     QT_TRANSLATE_NOOP("Doctor", "The settings show, under General, how to bind one yourself.")},
};

} // namespace

Verdict sessionVerdict(const Facts& facts, Names /*names*/) {
    if (!facts.system) return {unknown, {QT_TRANSLATE_NOOP("Doctor", "could not be looked at")}};
    const std::string kind = facts.system->wayland ? "Wayland" : "X11";
    if (facts.system->desktops.empty()) return {ok, {"%1", {kind}}};
    return {ok, {"%1, %2", {kind, facts.system->desktops.front()}}};
}

Verdict displayVerdict(const Facts& facts, Names /*names*/) {
    const Phrase again{QT_TRANSLATE_NOOP("Doctor", "Log out and in again.")};
    const bool x = xServer(facts) == Presence::answers;
    if (isWayland(facts)) {
        if (compositor(facts) == Presence::silent)
            return {failed,
                    {QT_TRANSLATE_NOOP("Doctor", "the Wayland compositor does not answer")},
                    again};
        if (compositor(facts) == Presence::answers)
            return {
                ok,
                {x ? QT_TRANSLATE_NOOP("Doctor", "the Wayland compositor and an X server answer")
                   : QT_TRANSLATE_NOOP("Doctor", "the Wayland compositor answers")}};
    }
    if (x) return {ok, {QT_TRANSLATE_NOOP("Doctor", "the X server answers")}};
    if (xServer(facts) == Presence::silent)
        return {failed, {QT_TRANSLATE_NOOP("Doctor", "the X server does not answer")}, again};
    return {failed,
            {QT_TRANSLATE_NOOP("Doctor", "there is no display")},
            {QT_TRANSLATE_NOOP("Doctor", "Run Quillon in your desktop's session, where DISPLAY or "
                                         "WAYLAND_DISPLAY names the display.")}};
}

Verdict clipboardVerdict(const Facts& facts, Names /*names*/) {
    if (!hasDisplay(facts)) return withoutDisplay();
    const auto& clipboard = facts.clipboard;
    const bool owned = facts.xServer && facts.xServer->clipboardOwned;
    const bool x = clipboard && clipboard->way == ClipboardWay::x11;
    if (!clipboard || (x && owned && clipboard->formats.empty())) {
        return {
            failed,
            {QT_TRANSLATE_NOOP("Doctor", "the program that copied last does not answer")},
            {QT_TRANSLATE_NOOP("Doctor", "Copy something in another program, or end that one.")}};
    }
    const std::string way = clipboardWays.at(static_cast<std::size_t>(clipboard->way));
    if (way.empty()) {
        return {failed,
                {QT_TRANSLATE_NOOP("Doctor", "this desktop lets no program read it")},
                {QT_TRANSLATE_NOOP("Doctor", "Switch on Xwayland in the desktop.")}};
    }
    if (clipboard->formats.empty())
        return {ok, {QT_TRANSLATE_NOOP("Doctor", "by %1; empty now"), {way}}};
    return {ok,
            {QT_TRANSLATE_NOOP("Doctor", "by %1; on offer now: %2"),
             {way, formatNames(clipboard->formats)}}};
}

Verdict shortcutVerdict(const Facts& facts, Names /*names*/) {
    if (!facts.shortcut)
        return {unknown, {QT_TRANSLATE_NOOP("Doctor", "not looked at, for Quillon does not run")}};
    const HotKeyState& state = *facts.shortcut;
    const bool bound = state.kind == HotKeyState::Kind::bound;
    if (bound && !facts.stays)
        return {ok, {QT_TRANSLATE_NOOP("Doctor", "%1 is free"), {keys(facts)}}};
    if (state.kind == HotKeyState::Kind::unavailable && state.way == ShortcutWay::portal) {
        return {failed,
                {QT_TRANSLATE_NOOP("Doctor", "the desktop's shortcuts have stopped")},
                {QT_TRANSLATE_NOOP("Doctor", "Log out and in again.")}};
    }
    if (state.kind == HotKeyState::Kind::taken && !facts.shortcutHolder.empty()) {
        return {failed,
                {QT_TRANSLATE_NOOP("Doctor", "“%2” has %1"), {keys(facts), facts.shortcutHolder}},
                {shortcutRows[static_cast<std::size_t>(state.kind)].mend}};
    }
    const VerdictRow& row = shortcutRows[static_cast<std::size_t>(state.kind)];
    return {row.state, {row.found, {keys(facts)}}, {row.mend}};
}

Verdict bannerVerdict(const Facts& facts, Names /*names*/) {
    if (!facts.config.showBanner)
        return {ok, {QT_TRANSLATE_NOOP("Doctor", "switched off in the settings")}};
    if (!hasDisplay(facts)) return withoutDisplay();
    const bool layer = facts.compositor && facts.compositor->layers;
    return {ok,
            {layer ? QT_TRANSLATE_NOOP("Doctor", "a layer over all windows")
                   : QT_TRANSLATE_NOOP("Doctor", "a window")}};
}

Verdict trayVerdict(const Facts& facts, Names /*names*/) {
    if (facts.bus && facts.bus->trayHost)
        return {ok, {QT_TRANSLATE_NOOP("Doctor", "shown by a host on the session bus")}};
    if (facts.xServer && facts.xServer->tray)
        return {ok, {QT_TRANSLATE_NOOP("Doctor", "shown by a tray on the X server")}};
    if (!hasDisplay(facts)) return withoutDisplay();
    return {
        warning,
        {QT_TRANSLATE_NOOP("Doctor", "this desktop shows no icons")},
        {QT_TRANSLATE_NOOP("Doctor", "Open the panel with: quillon panel. Or give the desktop a "
                                     "tray, such as an extension.")}};
}

} // namespace quillon
