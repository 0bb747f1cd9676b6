#include "VirtualKeyboard.h"

#include "Program.h"

#include <gtest/gtest.h>
#include <wayland-client.h>

#include <QProcess>
#include <QScopeGuard>

#include <array>
#include <memory>
#include <string_view>

#include <linux/input-event-codes.h>
#include <sys/mman.h>
#include <unistd.h>

namespace quillon::test {

namespace {

// The protocol, as data. Requests are numbered by their order.
enum KeyboardRequest : std::uint32_t { setKeymap, sendKey, sendModifiers };
constexpr std::uint32_t createKeyboard = 0; // of the manager

constexpr std::array<const wl_interface*, 4> noTypes{};
constexpr std::array keyboardRequests{
    wl_message{"keymap", "uhu", const_cast<const wl_interface**>(noTypes.data())},
    wl_message{"key", "uuu", const_cast<const wl_interface**>(noTypes.data())},
    wl_message{"modifiers", "uuuu", const_cast<const wl_interface**>(noTypes.data())}};
const wl_interface keyboardInterface{"zwp_virtual_keyboard_v1", 1, keyboardRequests.size(),
                                     keyboardRequests.data(),   0, nullptr};
std::array<const wl_interface*, 2> creationTypes{&wl_seat_interface, &keyboardInterface};
const std::array managerRequests{wl_message{"create_virtual_keyboard", "on", creationTypes.data()}};
const wl_interface managerInterface{"zwp_virtual_keyboard_manager_v1",
                                    1,
                                    managerRequests.size(),
                                    managerRequests.data(),
                                    0,
                                    nullptr};

struct Offers {
    wl_seat* seat = nullptr;
    wl_proxy* manager = nullptr;
};

void takeOffer(void* data, wl_registry* registry, std::uint32_t name, const char* interface,
               std::uint32_t /*version*/) {
    auto& offers = *static_cast<Offers*>(data);
    const auto bind = [&](const wl_interface& wanted) {
        return wl_registry_bind(registry, name, &wanted, 1);
    };
    if (interface == std::string_view{wl_seat_interface.name}) {
        offers.seat = static_cast<wl_seat*>(bind(wl_seat_interface));
    } else if (interface == std::string_view{managerInterface.name}) {
        offers.manager = static_cast<wl_proxy*>(bind(managerInterface));
    }
}

/// A file in memory that holds the description of a US keyboard.
std::pair<int, std::uint32_t> keymap() {
    QProcess compiler;
    compiler.start(QStringLiteral("xkbcli"), words("compile-keymap --layout us"));
    EXPECT_TRUE(compiler.waitForFinished());
    const QByteArray text = compiler.readAllStandardOutput() + '\0';
    const int file = ::memfd_create("keymap", MFD_CLOEXEC);
    EXPECT_EQ(::write(file, text.data(), static_cast<std::size_t>(text.size())), text.size());
    return {file, static_cast<std::uint32_t>(text.size())};
}

} // namespace

void pressControlAltV() {
    const std::unique_ptr<wl_display, decltype(&wl_display_disconnect)> display{
        wl_display_connect(nullptr), &wl_display_disconnect};
    ASSERT_NE(display, nullptr);
    Offers offers;
    wl_registry* const registry = wl_display_get_registry(display.get());
    constexpr wl_registry_listener listener{&takeOffer, [](void*, wl_registry*, std::uint32_t) {}};
    wl_registry_add_listener(registry, &listener, &offers);
    wl_display_roundtrip(display.get());
    ASSERT_NE(offers.manager, nullptr) << "the compositor takes no virtual keyboards";
    wl_proxy* const keyboard = wl_proxy_marshal_flags(
        offers.manager, createKeyboard, &keyboardInterface, 1, 0, offers.seat, nullptr);
    const auto unplug = qScopeGuard([&] {
        for (void* proxy : {static_cast<void*>(keyboard), static_cast<void*>(offers.manager),
                            static_cast<void*>(offers.seat), static_cast<void*>(registry)})
            wl_proxy_destroy(static_cast<wl_proxy*>(proxy));
    });
    const auto request = [&](std::uint32_t number, auto... arguments) {
        wl_proxy_marshal_flags(keyboard, number, nullptr, 1, 0, arguments...);
        wl_display_roundtrip(display.get());
    };
    const auto [file, size] = keymap();
    request(setKeymap, WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file, size);
    ::close(file);
    // The keymap's masks of Control and Alt (Mod1), as in every keymap of X.
    constexpr std::uint32_t held = 1U << 2 | 1U << 3;
    std::uint32_t time = 0;
    for (const std::uint32_t pressed : {1U, 0U}) {
        request(sendModifiers, pressed != 0 ? held : 0U, 0U, 0U, 0U);
        for (const std::uint32_t key : {KEY_LEFTCTRL, KEY_LEFTALT, KEY_V})
            request(sendKey, ++time, key, pressed);
    }
}

} // namespace quillon::test
