#include "platform/SelectionOwner.h"

#include <sys/socket.h>

#include <utility>

namespace quillon::test {

SelectionOwner::SelectionOwner(const char* display, const std::map<std::string, Answer>& answers)
    : connection_{X11Connection::open(display)} {
    const xcb_window_t window = xcb_generate_id(xcb_);
    xcb_create_window(xcb_, 0, window, connection_->root(), 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_set_selection_owner(xcb_, window, internAtom(xcb_, "CLIPBOARD"), XCB_CURRENT_TIME);
    // Each is a round trip: it is the owner afterwards.
    for (const auto& [target, answer] : answers)
        answers_[internAtom(xcb_, target)] = answer;
    thread_ = std::thread{[this] { run(); }};
}

SelectionOwner::~SelectionOwner() {
    ::shutdown(xcb_get_file_descriptor(xcb_), SHUT_RDWR); // ends the thread's wait
    thread_.join();
}

void SelectionOwner::run() {
    while (const auto event = next(XCB_SELECTION_REQUEST)) {
        ++requests_;
        const auto& request = reinterpret_cast<const Request&>(*event);
        if (const auto answer = answers_.find(request.target); answer != answers_.end()) {
            answer->second(*this, request);
        } else {
            notify(request, true);
        }
    }
}

void SelectionOwner::write(const Request& request, const std::string& type, std::uint8_t format,
                           const QByteArray& value) {
    xcb_change_property(xcb_, XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                        internAtom(xcb_, type), format,
                        static_cast<std::uint32_t>(value.size()) * 8 / format, value.constData());
}

void SelectionOwner::notify(const Request& request, bool refused) {
    xcb_selection_notify_event_t event{};
    event.response_type = XCB_SELECTION_NOTIFY;
    event.requestor = request.requestor;
    event.selection = request.selection;
    event.target = request.target;
    event.time = request.time;
    event.property = refused ? xcb_atom_t{XCB_ATOM_NONE} : request.property;
    xcb_send_event(xcb_, 0, request.requestor, 0, reinterpret_cast<const char*>(&event));
}

void SelectionOwner::writePieces(const Request& request, const std::string& type,
                                 const std::vector<QByteArray>& pieces,
                                 std::chrono::milliseconds pause, bool finish) {
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(xcb_, request.requestor, XCB_CW_EVENT_MASK, &events);
    write(request, "INCR", 32, QByteArray(4, '\0'));
    notify(request);
    for (const QByteArray& piece : pieces) {
        if (!waitUntilTaken(request)) return;
        std::this_thread::sleep_for(pause);
        write(request, type, 8, piece);
    }
    if (finish && waitUntilTaken(request)) write(request, type, 8, {});
}

bool SelectionOwner::waitUntilTaken(const Request& request) {
    while (const auto event = next(XCB_PROPERTY_NOTIFY)) {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(*event);
        if (change.window == request.requestor && change.state == XCB_PROPERTY_DELETE) return true;
    }
    return false;
}

XcbPointer<xcb_generic_event_t> SelectionOwner::next(int type) {
    xcb_flush(xcb_);
    for (;;) {
        XcbPointer<xcb_generic_event_t> event{xcb_wait_for_event(xcb_)};
        if (!event || (event->response_type & eventTypeMask) == type) return event;
    }
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
