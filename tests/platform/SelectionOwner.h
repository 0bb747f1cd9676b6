#pragma once

#include "platform/linux/x11/X11Connection.h"

#include <QByteArray>

#include <atomic>
#include <functional>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include <sys/socket.h>

namespace quillon::test {

/// An owner of the clipboard that answers as well or as badly as a test wants, in a thread of its
/// own.
class SelectionOwner {
public:
    using Request = xcb_selection_request_event_t;
    using Answer = std::function<void(SelectionOwner&, const Request&)>;

    /// Owns the clipboard when it returns. Targets that are not in `answers` are refused.
    SelectionOwner(const char* display, const std::map<std::string, Answer>& answers)
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
    SelectionOwner(const SelectionOwner&) = delete;
    SelectionOwner& operator=(const SelectionOwner&) = delete;
    ~SelectionOwner() {
        ::shutdown(xcb_get_file_descriptor(xcb_), SHUT_RDWR); // ends the thread's wait
        thread_.join();
    }

    /// How many requests have come in.
    [[nodiscard]] int requests() const { return requests_; }

    // What an answer is made of; on the owner's thread.
    void write(const Request& request, const std::string& type, std::uint8_t format,
               const QByteArray& value) {
        xcb_change_property(xcb_, XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                            internAtom(xcb_, type), format,
                            static_cast<std::uint32_t>(value.size()) * 8 / format,
                            value.constData());
    }
    void notify(const Request& request, bool refused = false) {
        xcb_selection_notify_event_t event{};
        event.response_type = XCB_SELECTION_NOTIFY;
        event.requestor = request.requestor;
        event.selection = request.selection;
        event.target = request.target;
        event.time = request.time;
        event.property = refused ? xcb_atom_t{XCB_ATOM_NONE} : request.property;
        xcb_send_event(xcb_, 0, request.requestor, 0, reinterpret_cast<const char*>(&event));
    }
    /// Sends the pieces one by one as the requestor takes them, each `pause` after the last was
    /// taken, and the empty piece that ends them if `finish`.
    void writePieces(const Request& request, const std::string& type,
                     const std::vector<QByteArray>& pieces, std::chrono::milliseconds pause,
                     bool finish = true) {
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

private:
    void run() {
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
    bool waitUntilTaken(const Request& request) {
        while (const auto event = next(XCB_PROPERTY_NOTIFY)) {
            const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(*event);
            if (change.window == request.requestor && change.state == XCB_PROPERTY_DELETE)
                return true;
        }
        return false;
    }
    /// Waits for an event of this type, and drops the others; null when the connection has ended.
    XcbPointer<xcb_generic_event_t> next(int type) {
        xcb_flush(xcb_);
        for (;;) {
            XcbPointer<xcb_generic_event_t> event{xcb_wait_for_event(xcb_)};
            if (!event || (event->response_type & eventTypeMask) == type) return event;
        }
    }

    std::unique_ptr<X11Connection> connection_;
    xcb_connection_t* xcb_ = connection_->get();
    std::map<xcb_atom_t, Answer> answers_;
    std::atomic<int> requests_ = 0;
    std::thread thread_;
};

/// The whole value at once.
inline SelectionOwner::Answer whole(QByteArray value, std::string type) {
    return [=](SelectionOwner& owner, const SelectionOwner::Request& request) {
        owner.write(request, type, 8, value);
        owner.notify(request);
    };
}
/// No answer, ever.
inline SelectionOwner::Answer silence() {
    return [](SelectionOwner&, const SelectionOwner::Request&) {};
}

} // namespace quillon::test
