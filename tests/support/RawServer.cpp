#include "support/RawServer.h"

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <stdexcept>
#include <utility>

namespace quillon::test {

namespace {

constexpr std::size_t stepSize = 1 << 16;

} // namespace

std::string RawServer::Connection::receive(std::size_t limit) {
    std::string bytes(limit, '\0');
    const ssize_t count = ::recv(socket_, bytes.data(), bytes.size(), 0);
    bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return bytes;
}

std::string RawServer::Connection::request() {
    constexpr std::string_view headEnd = "\r\n\r\n";
    constexpr std::string_view lengthName = "Content-Length: ";
    constexpr std::size_t longestNumber = 20;
    const auto wanted = [&]() -> std::size_t {
        const auto head = received_.find(headEnd);
        if (head == std::string::npos) return std::string::npos;
        const auto length = received_.find(lengthName);
        if (length > head) return head + headEnd.size();
        const auto number = received_.substr(length + lengthName.size(), longestNumber);
        return head + headEnd.size() + std::stoul(number);
    };
    while (received_.size() < wanted()) {
        const std::string more = receive(stepSize);
        if (more.empty()) return std::exchange(received_, {});
        received_ += more;
    }
    std::string whole = received_.substr(0, wanted());
    received_.erase(0, whole.size());
    return whole;
}

bool RawServer::Connection::send(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (count <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

bool RawServer::Connection::reply(int status, std::string_view body, std::string_view headers) {
    std::string bytes = "HTTP/1.1 " + std::to_string(status) + " Reply\r\n";
    bytes.append(headers).append("Content-Length: ").append(std::to_string(body.size()));
    return send(bytes.append("\r\n\r\n").append(body));
}

void RawServer::Connection::awaitEnd() {
    while (!receive(stepSize).empty())
        continue;
}

RawServer::RawServer(std::function<void(Connection&)> serve) : serve_{std::move(serve)} {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    auto* generic = reinterpret_cast<sockaddr*>(&address);
    listener_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (::bind(listener_, generic, length) != 0 || ::listen(listener_, 16) != 0 ||
        ::getsockname(listener_, generic, &length) != 0)
        throw std::runtime_error{"no port to listen on"};
    port_ = ntohs(address.sin_port);
    accepting_ = std::thread{[this] { accept(); }};
}

RawServer::~RawServer() {
    ::shutdown(listener_, SHUT_RDWR);
    accepting_.join();
    for (const int socket : sockets_)
        ::shutdown(socket, SHUT_RDWR);
    for (std::thread& servant : servants_)
        servant.join();
    sockets_.push_back(listener_);
    for (const int socket : sockets_)
        ::close(socket);
}

void RawServer::accept() {
    for (;;) {
        const int socket = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
        if (socket < 0) return;
        ++connections_;
        sockets_.push_back(socket);
        servants_.emplace_back([this, socket] {
            Connection connection{socket};
            serve_(connection);
            ::shutdown(socket, SHUT_RDWR);
        });
    }
}

std::string RawServer::url(std::string_view path) const {
    return "http://127.0.0.1:" + std::to_string(port_) + std::string{path};
}

} // namespace quillon::test
