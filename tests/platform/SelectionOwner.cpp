#include "platform/SelectionOwner.h"

#include "platform/linux/x11/X11Connection.h"

#include <poll.h>

#include <utility>

namespace quillon::test {

namespace {

XcbPointer<xcb_generic_event_t> nextEvent(xcb_connection_t* connection) {
    return XcbPointer<xcb_generic_event_t>{xcb_poll_for_event(connection)};
}

void awaitInput(xcb_connection_t* connection) {
    xcb_flush(connection);
    pollfd source{xcb_get_file_descriptor(connection), POLLIN, 0};
    poll(&source, 1, 5);
}

} // namespace

SelectionOwner::SelectionOwner(const char* display, std::map<std::string, Answer> answers)
    : answers_{std::move(answers)},
      connection_{xcb_connect(display, nullptr)} {
    const auto* screen = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
    window_ = xcb_generate_id(connection_);
    xcb_create_window(connection_, 0, window_, screen->root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_set_selection_owner(connection_, window_, atom("CLIPBOARD"), XCB_CURRENT_TIME);
    for (const auto& [target, answer] : answers_)
        atom(target); // a round trip: it is the owner now
    thread_ = std::thread{[this] { run(); }};
}

SelectionOwner::~SelectionOwner() {
    stopped_ = true;
    thread_.join();
    xcb_disconnect(connection_);
}

void SelectionOwner::run() {
    while (!stopped_) {
        const auto event = nextEvent(connection_);
        if (!event) {
            awaitInput(connection_);
        } else if ((event->response_type & 0x7f) == XCB_SELECTION_REQUEST) {
            ++requests_;
            answer(reinterpret_cast<const Request&>(*event));
        }
    }
}

void SelectionOwner::answer(const Request& request) {
    const std::string target = name(request.target);
    if (const auto answer = answers_.find(target); answer != answers_.end()) {
        answer->second(*this, request);
    } else {
        notify(request, true);
    }
}

void SelectionOwner::write(const Request& request, const std::string& type, std::uint8_t format,
                           const QByteArray& value) {
    xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                        atom(type), format, static_cast<std::uint32_t>(value.size()) * 8 / format,
                        value.constData());
}

void SelectionOwner::notify(const Request& request, bool refused) {
    xcb_selection_notify_event_t event{};
    event.response_type = XCB_SELECTION_NOTIFY;
    event.requestor = request.requestor;
    event.selection = request.selection;
    event.target = request.target;
    event.time = request.time;
    event.property = refused ? xcb_atom_t{XCB_ATOM_NONE} : request.property;
    xcb_send_event(connection_, 0, request.requestor, 0, reinterpret_cast<const char*>(&event));
    xcb_flush(connection_);
}

void SelectionOwner::writePieces(const Request& request, const std::string& type,
                                 const std::vector<QByteArray>& pieces,
                                 std::chrono::milliseconds pause, bool finish) {
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(connection_, request.requestor, XCB_CW_EVENT_MASK, &events);
    write(request, "INCR", 32, QByteArray(4, '\0'));
    notify(request);
    for (const QByteArray& piece : pieces) {
        if (!waitUntilTaken(request)) return;
        std::this_thread::sleep_for(pause);
        write(request, type, 8, piece);
    }
    if (finish && waitUntilTaken(request)) write(request, type, 8, {});
    xcb_flush(connection_);
}

bool SelectionOwner::waitUntilTaken(const Request& request) {
    while (!stopped_) {
        const auto event = nextEvent(connection_);
        if (!event) {
            awaitInput(connection_);
        } else if ((event->response_type & 0x7f) == XCB_PROPERTY_NOTIFY) {
            const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(*event);
            if (change.window == request.requestor && change.state == XCB_PROPERTY_DELETE) {
                return true;
            }
        }
    }
    return false;
}

xcb_atom_t SelectionOwner::atom(const std::string& text) {
    return internAtom(connection_, text);
}

std::string SelectionOwner::name(xcb_atom_t value) {
    const XcbPointer<xcb_get_atom_name_reply_t> reply{
        xcb_get_atom_name_reply(connection_, xcb_get_atom_name(connection_, value), nullptr)};
    if (!reply) return {};
    return {xcb_get_atom_name_name(reply.get()), reply->name_len};
}

SelectionOwner::Answer whole(QByteArray value, std::string type) {
    return [=](SelectionOwner& owner, const SelectionOwner::Request& request) {
        owner.write(request, type, 8, value);
        owner.notify(request);
    };
}

SelectionOwner::Answer silence() {
    return [](SelectionOwner&, const SelectionOwner::Request&) {};
}

} // namespace quillon::test
