#pragma once

#include "platform/linux/x11/X11Connection.h"

#include <QByteArray>

#include <atomic>
#include <chrono>
#include <functional>
#include <map>
#include <string>
#include <thread>
#include <vector>

namespace quillon::test {

/// An owner of the clipboard that answers as well or as badly as a test wants, in a thread of its
/// own.
class SelectionOwner {
public:
    using Request = xcb_selection_request_event_t;
    using Answer = std::function<void(SelectionOwner&, const Request&)>;

    /// Owns the clipboard when it returns. Targets that are not in `answers` are refused.
    SelectionOwner(const char* display, const std::map<std::string, Answer>& answers);
    SelectionOwner(const SelectionOwner&) = delete;
    SelectionOwner& operator=(const SelectionOwner&) = delete;
    ~SelectionOwner();

    /// How many requests have come in.
    [[nodiscard]] int requests() const { return requests_; }

    // What an answer is made of; on the owner's thread.
    void write(const Request& request, const std::string& type, std::uint8_t format,
               const QByteArray& value);
    void notify(const Request& request, bool refused = false);
    /// Sends the pieces one by one as the requestor takes them, each `pause` after the last was
    /// taken, and the empty piece that ends them if `finish`.
    void writePieces(const Request& request, const std::string& type,
                     const std::vector<QByteArray>& pieces, std::chrono::milliseconds pause,
                     bool finish = true);

private:
    void run();
    bool waitUntilTaken(const Request& request);
    /// Waits for an event of this type, and drops the others; null when the connection has ended.
    XcbPointer<xcb_generic_event_t> next(int type);

    std::unique_ptr<X11Connection> connection_;
    xcb_connection_t* xcb_ = connection_->get();
    std::map<xcb_atom_t, Answer> answers_;
    std::atomic<int> requests_ = 0;
    std::thread thread_;
};

/// The whole value at once.
SelectionOwner::Answer whole(QByteArray value, std::string type);
/// No answer, ever.
SelectionOwner::Answer silence();

} // namespace quillon::test
