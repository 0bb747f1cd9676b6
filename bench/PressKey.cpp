// bench_PressKey: presses Control, Alt and V for each line on standard input, as the keyboard
// would, and prints when, in ms since 1970.
#include <xcb/xtest.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>

namespace {

/// Key codes; the last one makes the combination complete.
constexpr std::array<std::uint8_t, 3> keys{37, 64, 55};

void fake(xcb_connection_t* connection, std::uint8_t type, std::uint8_t key) {
    xcb_test_fake_input(connection, type, key, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
    xcb_flush(connection);
}

double now() {
    using Milliseconds = std::chrono::duration<double, std::milli>;
    return Milliseconds{std::chrono::system_clock::now().time_since_epoch()}.count();
}

} // namespace

int main() {
    xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection) != 0) return EXIT_FAILURE;
    for (std::string line; std::getline(std::cin, line);) {
        double pressed = 0;
        for (const std::uint8_t key : keys) {
            pressed = now();
            fake(connection, XCB_KEY_PRESS, key);
        }
        for (const std::uint8_t key : keys)
            fake(connection, XCB_KEY_RELEASE, key);
        std::printf("%.3f\n", pressed);
        std::fflush(stdout);
    }
    xcb_disconnect(connection);
    return EXIT_SUCCESS;
}
