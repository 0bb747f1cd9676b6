#include "platform/linux/shortcut/ShortcutRules.h"

#include "platform/linux/shortcut/CompositorLine.h"

#include <array>

namespace quillon {

namespace {

using enum HotKeyState::Kind;
using Kind = HotKeyState::Kind;
using Offer = HotKeyState::Offer;
using Outcome = BindingReport::Outcome;

/// In the order of the portal's answers.
constexpr std::array portalKinds{asking,      bound,       unassigned,  refused,
                                 unavailable, unavailable, unavailable, unavailable};

/// In the order of the outcomes.
constexpr std::array bindingKinds{asking, unavailable, unavailable, bound, taken};

bool isLeftToOthers(PortalAnswer answer) {
    return answer == PortalAnswer::failed || answer == PortalAnswer::missing ||
           answer == PortalAnswer::silent;
}

Offer portalOffer(const PortalReport& portal) {
    switch (portal.answer) {
    case PortalAnswer::bound:
        return portal.canConfigure ? Offer::configure : Offer::nothing;
    case PortalAnswer::unassigned:
        return portal.canConfigure ? Offer::configure : Offer::askAgain;
    case PortalAnswer::awaited:
    case PortalAnswer::missing:
        return Offer::nothing;
    case PortalAnswer::declined:
    case PortalAnswer::failed:
    case PortalAnswer::silent:
    case PortalAnswer::gone: // it may have ended for good, and asking starts it
        break;
    }
    return Offer::askAgain;
}

HotKeyState portalState(const PortalReport& portal) {
    return {.kind = portalKinds.at(static_cast<std::size_t>(portal.answer)),
            .way = ShortcutWay::portal,
            .offer = portalOffer(portal),
            .trigger = portal.trigger};
}

/// Where the user has a place for the command.
HotKeyState commandState(const std::filesystem::path& executable) {
    return {.kind = unavailable,
            .way = ShortcutWay::none,
            .offer = Offer::copyCommand,
            .command = sendCommand(executable)};
}

HotKeyState bindingState(const BindingReport& binding, const std::filesystem::path& executable) {
    if (binding.outcome == Outcome::missing) return commandState(executable);
    return {.kind = bindingKinds.at(static_cast<std::size_t>(binding.outcome)),
            .way = ShortcutWay::gnomeBinding,
            .offer = binding.outcome == Outcome::absent ? Offer::addBinding : Offer::nothing,
            .trigger = binding.trigger};
}

} // namespace

ShortcutWay shortcutWay(const FoundSession& session, PortalAnswer answer) {
    if (!session.wayland) return ShortcutWay::x11;
    const bool hasFile = compositorLine(session, PhysicalKey::v, "/").has_value();
    // A compositor with a file of its own gives keys nowhere else.
    if (answer == PortalAnswer::unassigned && hasFile) return ShortcutWay::compositorLine;
    if (!isLeftToOthers(answer)) return ShortcutWay::portal;
    if (session.isDesktop("gnome")) return ShortcutWay::gnomeBinding;
    return hasFile ? ShortcutWay::compositorLine : ShortcutWay::none;
}

HotKeyState shortcutState(const FoundSession& session, const PortalReport& portal,
                          const BindingReport& binding, PhysicalKey key,
                          const std::filesystem::path& executable) {
    switch (shortcutWay(session, portal.answer)) {
    case ShortcutWay::x11:
        return {};
    case ShortcutWay::portal:
        return portalState(portal);
    case ShortcutWay::gnomeBinding:
        return bindingState(binding, executable);
    case ShortcutWay::compositorLine: {
        auto line = compositorLine(session, key, executable);
        return {.kind = unavailable,
                .way = ShortcutWay::compositorLine,
                .offer = Offer::copyCommand,
                .command = std::move(line->line),
                .place = std::move(line->file)};
    }
    case ShortcutWay::none:
        break;
    }
    HotKeyState state = commandState(executable);
    // A portal that did not manage it now may do so later; a desktop with one needs no command.
    if (portal.answer != PortalAnswer::missing) state.offer = Offer::askAgain;
    return state;
}

} // namespace quillon
