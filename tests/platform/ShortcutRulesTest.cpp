#include "platform/linux/shortcut/ShortcutRules.h"

#include "platform/linux/shortcut/CompositorLine.h"
#include "support/Testing.h"

namespace quillon::test {
namespace {

using enum PortalAnswer;
using Kind = HotKeyState::Kind;
using Offer = HotKeyState::Offer;
using Outcome = BindingReport::Outcome;

constexpr PhysicalKey key = PhysicalKey::p;

TEST(ShortcutRules, TellSessionsOfWaylandFromThoseOfX11) {
    const std::tuple<const char*, const char*, bool> cases[]{
        {"wayland", "", true},       {"wayland", "wayland-0", true},
        {"tty", "wayland-1", true},  {"", "wayland-0", true},
        {"x11", "wayland-0", false}, {"x11", "", false},
        {"tty", "", false},          {"", "", false},
    };
    for (const auto& [type, display, expected] : cases)
        EXPECT_EQ(isWaylandSession(type, display), expected) << type << " " << display;
}

TEST(ShortcutRules, ChooseTheWayByWhatWasFound) {
    using enum ShortcutWay;
    const FoundSession xorg{.wayland = false, .desktops = {"gnome"}};
    const FoundSession plasma{.wayland = true, .desktops = {"kde"}};
    const FoundSession ubuntu{.wayland = true, .desktops = {"ubuntu", "gnome"}};
    const FoundSession sway{.wayland = true, .desktops = {"sway"}};
    const FoundSession unnamed{.wayland = true};
    const std::tuple<const FoundSession*, PortalAnswer, Outcome, ShortcutWay, Kind, Offer> cases[]{
        {&xorg, missing, Outcome::absent, x11, Kind::bound, Offer::nothing},
        {&plasma, awaited, Outcome::missing, portal, Kind::asking, Offer::nothing},
        {&plasma, bound, Outcome::missing, portal, Kind::bound, Offer::configure},
        {&plasma, unassigned, Outcome::missing, portal, Kind::unassigned, Offer::configure},
        {&plasma, declined, Outcome::missing, portal, Kind::refused, Offer::askAgain},
        {&plasma, gone, Outcome::missing, portal, Kind::unavailable, Offer::askAgain},
        {&plasma, silent, Outcome::missing, none, Kind::unavailable, Offer::askAgain},
        {&plasma, missing, Outcome::missing, none, Kind::unavailable, Offer::copyCommand},
        {&unnamed, failed, Outcome::missing, none, Kind::unavailable, Offer::askAgain},
        {&ubuntu, awaited, Outcome::absent, portal, Kind::asking, Offer::nothing},
        {&ubuntu, declined, Outcome::absent, portal, Kind::refused, Offer::askAgain},
        {&ubuntu, missing, Outcome::awaited, gnomeBinding, Kind::asking, Offer::nothing},
        {&ubuntu, missing, Outcome::absent, gnomeBinding, Kind::unavailable, Offer::addBinding},
        {&ubuntu, silent, Outcome::present, gnomeBinding, Kind::bound, Offer::nothing},
        {&ubuntu, failed, Outcome::taken, gnomeBinding, Kind::taken, Offer::nothing},
        {&ubuntu, missing, Outcome::missing, none, Kind::unavailable, Offer::copyCommand},
        {&sway, bound, Outcome::missing, portal, Kind::bound, Offer::configure},
        {&sway, failed, Outcome::missing, compositorLine, Kind::unavailable, Offer::copyCommand},
        {&sway, unassigned, Outcome::missing, compositorLine, Kind::unavailable,
         Offer::copyCommand},
    };
    for (const auto& [session, answer, outcome, way, kind, offer] : cases) {
        const HotKeyState state = shortcutState(*session, {.answer = answer, .canConfigure = true},
                                                {.outcome = outcome}, key, "/opt/quillon");
        const auto row = &session - &std::get<0>(cases[0]);
        EXPECT_EQ(state.way, way) << row;
        EXPECT_EQ(state.kind, kind) << row;
        EXPECT_EQ(state.offer, offer) << row;
        const bool unaided = way == none || way == compositorLine;
        EXPECT_EQ(state.command.find("/opt/quillon") != std::string::npos, unaided) << row;
    }
}

TEST(ShortcutRules, WriteTheLineOfEachCompositorForAnyPath) {
    const std::tuple<const char*, const char*, const char*> cases[]{
        {"sway", R"(/a b/it's"q")", R"(bindsym --to-code Ctrl+Alt+p exec '/a b/it'\''s"q"' send)"},
        {"hyprland", "/usr/bin/quillon", "bind = CTRL ALT, P, exec, /usr/bin/quillon send"},
        {"labwc", R"(/a&b/"q")",
         R"(<keybind key="C-A-p"><action name="Execute" command="'/a&amp;b/&quot;q&quot;' send"/>)"
         "</keybind>"},
        {"river", "/a b/q", R"(riverctl map normal Control+Alt P spawn ''\''/a b/q'\'' send')"},
        {"niri", R"(/a\b "q")", R"(Ctrl+Alt+P { spawn "/a\\b \"q\"" "send"; })"},
    };
    for (const auto& [name, program, expected] : cases) {
        const auto line =
            compositorLine({.wayland = true, .desktops = {"wlroots", name}}, key, program);
        ASSERT_TRUE(line) << name;
        EXPECT_EQ(line->line, expected);
    }
    EXPECT_FALSE(compositorLine({.wayland = true, .desktops = {"kde"}}, key, "/q"));
}

} // namespace
} // namespace quillon::test
