#include "support/RawServer.h"

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <stdexcept>
#include <utility>

namespace quillon::test {

std::string RawServer::Connection::receive(std::size_t size) {
    std::string bytes(size, '\0');
    const ssize_t count = ::recv(socket_, bytes.data(), bytes.size(), MSG_WAITALL);
    bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return bytes;
}

std::string RawServer::Connection::request() {
    constexpr std::string_view lengthName = "Content-Length: ";
    std::string head;
    while (!head.ends_with("\r\n\r\n")) {
        const std::string next = receive(1);
        if (next.empty()) return head;
        head += next;
    }
    const auto length = head.find(lengthName);
    if (length == std::string::npos) return head;
    const auto size = std::stoul(head.substr(length + lengthName.size()));
    return size > 0 ? head + receive(size) : head; // to receive nothing waits for a byte
}

bool RawServer::Connection::send(std::string_view bytes) {
    const ssize_t count = ::send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    return count == static_cast<ssize_t>(bytes.size());
}

bool RawServer::Connection::reply(int status, std::string_view body, std::string_view headers) {
    std::string bytes = "HTTP/1.1 " + std::to_string(status) + " Reply\r\n";
    bytes.append(headers).append("Content-Length: ").append(std::to_string(body.size()));
    return send(bytes.append("\r\n\r\n").append(body));
}

void RawServer::Connection::awaitEnd() {
    while (!receive(1 << 16).empty())
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
