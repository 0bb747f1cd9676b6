#include "FakeTray.h"

#include <xcb/xtest.h>

#include <array>

namespace quillon::test {

namespace {

constexpr std::int16_t left = 200;
constexpr std::uint16_t side = 24;
constexpr std::uint32_t requestDock = 0;

} // namespace

FakeTray::FakeTray() : connection_{X11Connection::open(nullptr)} {
    xcb_connection_t* const xcb = connection_->get();
    window_ = xcb_generate_id(xcb);
    const std::array<std::uint32_t, 2> values{1, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY};
    xcb_create_window(xcb, XCB_COPY_FROM_PARENT, window_, connection_->root(), left, 0, side, side,
                      0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values.data());
    xcb_map_window(xcb, window_);
    xcb_set_selection_owner(xcb, window_, internAtom(xcb, "_NET_SYSTEM_TRAY_S0"), XCB_CURRENT_TIME);
    announce();
}

void FakeTray::announce() {
    xcb_connection_t* const xcb = connection_->get();
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = connection_->root();
    message.type = internAtom(xcb, "MANAGER");
    message.data.data32[1] = internAtom(xcb, "_NET_SYSTEM_TRAY_S0");
    message.data.data32[2] = window_;
    xcb_send_event(xcb, 0, connection_->root(), XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(xcb);
}

bool FakeTray::hasIcon() {
    xcb_connection_t* const xcb = connection_->get();
    const xcb_atom_t opcode = internAtom(xcb, "_NET_SYSTEM_TRAY_OPCODE");
    while (const XcbPointer<xcb_generic_event_t> event{xcb_poll_for_event(xcb)}) {
        const auto kind = event->response_type & 0x7F;
        if (kind == XCB_CLIENT_MESSAGE) {
            const auto* const asked =
                reinterpret_cast<const xcb_client_message_event_t*>(event.get());
            if (asked->type == opcode && asked->data.data32[1] == requestDock)
                takeIn(asked->data.data32[2]);
        } else if (kind == XCB_DESTROY_NOTIFY) {
            const auto* const gone =
                reinterpret_cast<const xcb_destroy_notify_event_t*>(event.get());
            if (gone->window == icon_) icon_ = 0;
        }
    }
    return icon_ != 0;
}

void FakeTray::takeIn(std::uint32_t icon) {
    xcb_connection_t* const xcb = connection_->get();
    icon_ = icon;
    xcb_reparent_window(xcb, icon, window_, 0, 0);
    const std::array<std::uint32_t, 2> size{side, side};
    xcb_configure_window(xcb, icon, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT,
                         size.data());
    xcb_map_window(xcb, icon);
    xcb_flush(xcb);
}

void FakeTray::setColour(const QColor& colour) {
    const QRgba64 rgb = colour.rgba64();
    const std::array<std::uint32_t, 3> text{rgb.red(), rgb.green(), rgb.blue()};
    xcb_connection_t* const xcb = connection_->get();
    xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, window_,
                        internAtom(xcb, "_NET_SYSTEM_TRAY_COLORS"), XCB_ATOM_CARDINAL, 32,
                        text.size(), text.data());
    xcb_flush(xcb);
}

void FakeTray::click() {
    xcb_connection_t* const xcb = connection_->get();
    xcb_test_fake_input(xcb, XCB_MOTION_NOTIFY, 0, 0, connection_->root(), left + side / 2,
                        side / 2, 0);
    for (const auto event : std::array<std::uint8_t, 2>{XCB_BUTTON_PRESS, XCB_BUTTON_RELEASE})
        xcb_test_fake_input(xcb, event, XCB_BUTTON_INDEX_1, 0, connection_->root(), 0, 0, 0);
    xcb_flush(xcb);
}

} // namespace quillon::test
