// bench_TrayHost: a system tray (freedesktop System Tray Protocol) with room for one icon. Prints
// "ready" when it is there, and for each program whose icon asks for a place, when it did so, in ms
// of the monotonic clock. For each line on standard input it clicks the newest icon.
#include <poll.h>
#include <unistd.h>
#include <xcb/xtest.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>
#include <string>

namespace {

constexpr std::uint16_t size = 24;
constexpr std::uint32_t requestDock = 0; // the first of the protocol's messages

template <typename Reply>
using Answer = std::unique_ptr<Reply, decltype(&std::free)>;

class TrayHost {
public:
    explicit TrayHost(xcb_connection_t* connection)
        : connection_{connection},
          screen_{xcb_setup_roots_iterator(xcb_get_setup(connection)).data},
          window_{xcb_generate_id(connection)} {
        const std::uint32_t values[] = {screen_->black_pixel, 1};
        xcb_create_window(connection_, XCB_COPY_FROM_PARENT, window_, screen_->root, 0, 0, size,
                          size, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                          XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT, values);
        xcb_map_window(connection_, window_);
        becomeManager();
    }

    void handleEvents() {
        while (
            const Answer<xcb_generic_event_t> event{xcb_poll_for_event(connection_), &std::free}) {
            if ((event->response_type & 0x7f) != XCB_CLIENT_MESSAGE) continue;
            const auto* told = reinterpret_cast<xcb_client_message_event_t*>(event.get());
            if (told->type == opcode_ && told->data.data32[1] == requestDock)
                dock(told->data.data32[2]);
        }
    }

    void click() {
        xcb_test_fake_input(connection_, XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, screen_->root,
                            size / 2, size / 2, 0);
        for (const auto type : {std::uint8_t{XCB_BUTTON_PRESS}, std::uint8_t{XCB_BUTTON_RELEASE}})
            xcb_test_fake_input(connection_, type, XCB_BUTTON_INDEX_1, XCB_CURRENT_TIME, XCB_NONE,
                                0, 0, 0);
        xcb_flush(connection_);
    }

private:
    [[nodiscard]] xcb_atom_t atom(const char* name) const {
        const auto cookie =
            xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
        const Answer<xcb_intern_atom_reply_t> reply{
            xcb_intern_atom_reply(connection_, cookie, nullptr), &std::free};
        return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }

    void becomeManager() {
        const xcb_atom_t selection = atom("_NET_SYSTEM_TRAY_S0");
        xcb_set_selection_owner(connection_, window_, selection, XCB_CURRENT_TIME);
        xcb_client_message_event_t message{};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = screen_->root;
        message.type = atom("MANAGER");
        message.data.data32[1] = selection;
        message.data.data32[2] = window_;
        xcb_send_event(connection_, 0, screen_->root, XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                       reinterpret_cast<const char*>(&message));
        xcb_flush(connection_);
    }

    void dock(xcb_window_t icon) {
        using Milliseconds = std::chrono::duration<double, std::milli>;
        const auto now = std::chrono::steady_clock::now().time_since_epoch();
        std::printf("%.3f\n", Milliseconds{now}.count());
        std::fflush(stdout);
        xcb_reparent_window(connection_, icon, window_, 0, 0);
        const std::uint32_t values[] = {size, size};
        xcb_configure_window(connection_, icon, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT,
                             values);
        xcb_map_window(connection_, icon);
        xcb_flush(connection_);
    }

    xcb_connection_t* connection_;
    xcb_screen_t* screen_;
    xcb_window_t window_;
    xcb_atom_t opcode_ = atom("_NET_SYSTEM_TRAY_OPCODE");
};

} // namespace

int main() {
    xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection) != 0) return EXIT_FAILURE;
    TrayHost host{connection};
    std::puts("ready");
    std::fflush(stdout);
    pollfd waits[] = {{xcb_get_file_descriptor(connection), POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}};
    while (xcb_connection_has_error(connection) == 0) {
        host.handleEvents();
        poll(waits, 2, -1);
        if (waits[1].revents == 0) continue;
        std::string line;
        if (!std::getline(std::cin, line)) break;
        host.click();
    }
    xcb_disconnect(connection);
    return EXIT_SUCCESS;
}
