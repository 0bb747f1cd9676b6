#include "platform/linux/x11/X11Keyboard.h"

#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/XcbXkb.h"

#include <algorithm>
#include <span>
#include <string_view>

namespace quillon {

namespace {

struct KeyPlace {
    /// The key's name in XKB: a row and a place in it.
    std::string_view name;
    /// The key's code on keyboards without that name: the kernel's code plus eight.
    xcb_keycode_t usualCode;
};

/// In the order of PhysicalKey.
constexpr std::array<KeyPlace, 3> keyPlaces{{{"AB04", 55}, {"AD10", 33}, {"AB03", 54}}};

// Key symbols of the X protocol.
constexpr xcb_keysym_t altLeft = 0xFFE9;
constexpr xcb_keysym_t altRight = 0xFFEA;
constexpr xcb_keysym_t numLock = 0xFF7F;
constexpr xcb_keysym_t scrollLock = 0xFF14;

/// A busy server's repetitions may be late by this much, in milliseconds.
constexpr std::uint32_t lateness = 500;

using Names = XcbPointer<xcb_xkb_get_names_reply_t>;
using Controls = XcbPointer<xcb_xkb_get_controls_reply_t>;
using Modifiers = XcbPointer<xcb_get_modifier_mapping_reply_t>;
using Symbols = XcbPointer<xcb_get_keyboard_mapping_reply_t>;

/// The code of the key with the name; none if no key has it.
std::optional<xcb_keycode_t> codeNamed(std::string_view name, const Names& names) {
    xcb_xkb_get_names_value_list_t lists{};
    xcb_xkb_get_names_value_list_unpack(xcb_xkb_get_names_value_list(names.get()), names->nTypes,
                                        names->indicators, names->virtualMods, names->groupNames,
                                        names->nKeys, names->nKeyAliases, names->nRadioGroups,
                                        names->which, &lists);
    if (!(names->which & XCB_XKB_NAME_DETAIL_KEY_NAMES) || !lists.keyNames) return std::nullopt;
    for (int index = 0; index < names->nKeys; ++index) {
        // Names that fill their four bytes have no terminator.
        const char* bytes = lists.keyNames[index].name;
        if (std::string_view{bytes, sizeof(lists.keyNames->name)} == name)
            return static_cast<xcb_keycode_t>(names->firstKey + index);
    }
    return std::nullopt;
}

/// The lowest of the eight modifiers that a key with this symbol sets, as a mask; 0 when none does.
std::uint16_t modifierWith(xcb_keysym_t symbol, const Modifiers& modifiers, const Symbols& symbols,
                           xcb_keycode_t firstCode) {
    const std::span codes{xcb_get_modifier_mapping_keycodes(modifiers.get()),
                          std::size_t{8} * modifiers->keycodes_per_modifier};
    const std::span all{xcb_get_keyboard_mapping_keysyms(symbols.get()), symbols->length};
    const std::size_t perCode = symbols->keysyms_per_keycode;
    for (std::size_t place = 0; place < codes.size(); ++place) {
        if (codes[place] < firstCode) continue; // an unused place
        const std::size_t first = static_cast<std::size_t>(codes[place] - firstCode) * perCode;
        if (first + perCode > all.size()) continue;
        if (std::ranges::count(all.subspan(first, perCode), symbol) == 0) continue;
        return static_cast<std::uint16_t>(1U << (place / modifiers->keycodes_per_modifier));
    }
    return 0;
}

/// The modifier masks of Control and Alt with every combination of the locks.
std::vector<std::uint16_t> combinations(const Modifiers& modifiers, const Symbols& symbols,
                                        xcb_keycode_t firstCode) {
    const auto with = [&](xcb_keysym_t symbol) {
        return modifierWith(symbol, modifiers, symbols, firstCode);
    };
    std::uint16_t alt = with(altLeft);
    if (!alt) alt = with(altRight);
    if (!alt) alt = XCB_MOD_MASK_1;
    const std::uint16_t wanted = XCB_MOD_MASK_CONTROL | alt;
    std::vector<std::uint16_t> masks{wanted};
    for (const std::uint16_t lock :
         {std::uint16_t{XCB_MOD_MASK_LOCK}, with(numLock), with(scrollLock)}) {
        // A lock on a modifier that is in the masks already adds none.
        if (!lock || ((masks.back() | wanted) & lock)) continue;
        const std::vector<std::uint16_t> without = masks;
        for (const std::uint16_t mask : without)
            masks.push_back(mask | lock);
    }
    return masks;
}

} // namespace

std::optional<X11Keyboard> X11Keyboard::read(xcb_connection_t* connection) {
    const xcb_setup_t* setup = xcb_get_setup(connection);
    const xcb_keycode_t firstCode = setup->min_keycode;
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - firstCode + 1);
    constexpr xcb_xkb_device_spec_t device = XCB_XKB_ID_USE_CORE_KBD;

    // All questions are sent before the first answer is awaited.
    const auto namesAsked = xcb_xkb_get_names(connection, device, XCB_XKB_NAME_DETAIL_KEY_NAMES);
    const auto controlsAsked = xcb_xkb_get_controls(connection, device);
    const auto modifiersAsked = xcb_get_modifier_mapping(connection);
    const auto symbolsAsked = xcb_get_keyboard_mapping(connection, firstCode, count);
    const Names names{xcb_xkb_get_names_reply(connection, namesAsked, nullptr)};
    const Controls controls{xcb_xkb_get_controls_reply(connection, controlsAsked, nullptr)};
    const Modifiers modifiers{xcb_get_modifier_mapping_reply(connection, modifiersAsked, nullptr)};
    const Symbols symbols{xcb_get_keyboard_mapping_reply(connection, symbolsAsked, nullptr)};
    if (!names || !controls || !modifiers || !symbols) return std::nullopt;

    X11Keyboard keyboard;
    std::ranges::transform(keyPlaces, keyboard.codes.begin(), [&](const KeyPlace& place) {
        return codeNamed(place.name, names).value_or(place.usualCode);
    });
    keyboard.modifiers = combinations(modifiers, symbols, firstCode);
    keyboard.repeatPause = std::max(controls->repeatDelay, controls->repeatInterval) + lateness;
    return keyboard;
}

} // namespace quillon
