#include "sandbox/Connection.h"

#include "sandbox/ApiError.h"

#include <boost/beast/http/status.hpp>

#include <array>
#include <chrono>
#include <ctime>

#include <poll.h>

namespace quillon::sandbox {

namespace {

constexpr std::chrono::hours longestHang{1};

std::string reason(int status) {
    const auto known = boost::beast::http::int_to_status(static_cast<unsigned>(status));
    const auto text = boost::beast::http::obsolete_reason(known);
    return {text.data(), text.size()};
}

// As RFC 9110 wants it: "Sun, 06 Nov 1994 08:49:37 GMT".
std::string httpDate(std::chrono::system_clock::time_point time) {
    const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
    std::tm parts{};
    ::gmtime_r(&seconds, &parts);
    std::array<char, 40> text{};
    return {text.data(), std::strftime(text.data(), text.size(), "%a, %d %b %Y %T GMT", &parts)};
}

} // namespace

void Connection::run() {
    if (!channel_.open()) return;
    while (exchange() && !closing_) {
    }
    if (!broken_) channel_.close();
}

bool Connection::exchange() {
    HttpRequest request;
    request.connection = number_;
    const auto header = reader_.readHeader(request);
    if (header != RequestReader::Outcome::ready) return refuse(header);
    closing_ = !reader_.keepAlive();
    const auto method = Backend::methodOf(request.path);
    const auto fault = method ? backend_.faults.takeForCall(*method) : std::nullopt;
    if (fault && fault->kind == FaultKind::cutBeforeBody) {
        backend_.record(request, fault->name(), false, 0);
        channel_.reset();
        broken_ = true;
        return false;
    }
    const auto body = reader_.readBody(request);
    if (body != RequestReader::Outcome::ready) return refuse(body);
    const bool open = fault ? answerWithFault(request, *fault) : send(backend_.serve(request));
    reader_.recycle(request);
    return open;
}

bool Connection::answerWithFault(HttpRequest& request, const Fault& fault) {
    const auto standIn = fault.reply();
    if (standIn || fault.kind == FaultKind::hang || fault.kind == FaultKind::cutAfterBody) {
        backend_.record(request, fault.name(), true, standIn ? standIn->status : 0);
        request.finish();
        if (standIn) return send(*standIn);
        if (fault.kind == FaultKind::hang) pause(longestHang);
        return false;
    }
    const HttpReply reply = backend_.serve(request, fault.name());
    request.finish();
    if (fault.kind == FaultKind::trickle) return trickle(reply, fault.delay);
    if (fault.kind == FaultKind::delay) return pause(fault.delay) && send(reply);
    sendPart(reply);
    return false;
}

// The rest of the request is not parsed, so the connection cannot be used again. Closing it with
// unread bytes would reset it and lose the reply, so bytes that still arrive are read and dropped.
bool Connection::refuse(RequestReader::Outcome outcome) {
    if (outcome == RequestReader::Outcome::closed) return false;
    const bool tooLarge = outcome == RequestReader::Outcome::tooLarge;
    closing_ = true;
    if (!send(errorReply(tooLarge ? ApiError{413, "Request Entity Too Large"}
                                  : ApiError{400, "Bad Request"})))
        return false;
    channel_.close();
    std::string dropped(64UL * 1024, '\0');
    while (channel_.read(dropped.data(), dropped.size()) > 0) {
    }
    return false;
}

std::string Connection::onTheWire(const HttpReply& reply) const {
    const auto now =
        std::chrono::system_clock::now() + std::chrono::seconds{backend_.clockAhead.load()};
    std::string bytes = "HTTP/1.1 " + std::to_string(reply.status) + ' ' + reason(reply.status) +
                        "\r\nServer: nginx\r\nDate: " + httpDate(now) +
                        "\r\nContent-Type: " + reply.contentType +
                        "\r\nContent-Length: " + std::to_string(reply.body.size()) +
                        "\r\nConnection: " + (closing_ ? "close" : "keep-alive") + "\r\n\r\n";
    return bytes + reply.body;
}

// Sends the header and half of the body.
void Connection::sendPart(const HttpReply& reply) {
    const std::string bytes = onTheWire(reply);
    channel_.write(std::string_view{bytes}.substr(0, bytes.size() - (reply.body.size() + 1) / 2));
}

bool Connection::trickle(const HttpReply& reply, std::chrono::milliseconds between) {
    constexpr std::size_t pieces = 20;
    const std::string bytes = onTheWire(reply);
    const std::size_t piece = bytes.size() / pieces + 1;
    for (std::size_t begin = 0; begin < bytes.size(); begin += piece) {
        if (begin > 0 && !pause(between)) return false;
        if (!channel_.write(std::string_view{bytes}.substr(begin, piece))) return false;
    }
    return true;
}

// False if the client disconnects or the server stops before the time is over.
bool Connection::pause(std::chrono::milliseconds duration) {
    pollfd descriptor{channel_.descriptor(), POLLRDHUP, 0};
    return poll(&descriptor, 1, static_cast<int>(duration.count())) == 0;
}

} // namespace quillon::sandbox
