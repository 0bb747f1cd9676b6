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
    const ssize_t count = ::recv(m_socket, bytes.data(), bytes.size(), 0);
    bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return bytes;
}

std::string RawServer::Connection::request() {
    constexpr std::string_view headEnd = "\r\n\r\n";
    constexpr std::string_view lengthName = "Content-Length: ";
    constexpr std::size_t longestNumber = 20;
    const auto wanted = [&]() -> std::size_t {
        const auto head = m_received.find(headEnd);
        if (head == std::string::npos) return std::string::npos;
        const auto length = m_received.find(lengthName);
        if (length > head) return head + headEnd.size();
        const auto number = m_received.substr(length + lengthName.size(), longestNumber);
        return head + headEnd.size() + std::stoul(number);
    };
    while (m_received.size() < wanted()) {
        const std::string more = receive(stepSize);
        if (more.empty()) return std::exchange(m_received, {});
        m_received += more;
    }
    std::string whole = m_received.substr(0, wanted());
    m_received.erase(0, whole.size());
    return whole;
}

bool RawServer::Connection::send(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::send(m_socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
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

RawServer::RawServer(std::function<void(Connection&)> serve) : m_serve{std::move(serve)} {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    auto* generic = reinterpret_cast<sockaddr*>(&address);
    m_listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (::bind(m_listener, generic, length) != 0 || ::listen(m_listener, 16) != 0 ||
        ::getsockname(m_listener, generic, &length) != 0)
        throw std::runtime_error{"no port to listen on"};
    m_port = ntohs(address.sin_port);
    m_accepting = std::thread{[this] { accept(); }};
}

RawServer::~RawServer() {
    ::shutdown(m_listener, SHUT_RDWR);
    m_accepting.join();
    for (const int socket : m_sockets)
        ::shutdown(socket, SHUT_RDWR);
    for (std::thread& servant : m_servants)
        servant.join();
    m_sockets.push_back(m_listener);
    for (const int socket : m_sockets)
        ::close(socket);
}

void RawServer::accept() {
    for (;;) {
        const int socket = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
        if (socket < 0) return;
        ++m_connections;
        m_sockets.push_back(socket);
        m_servants.emplace_back([this, socket] {
            Connection connection{socket};
            m_serve(connection);
            ::shutdown(socket, SHUT_RDWR);
        });
    }
}

std::string RawServer::url(std::string_view path) const {
    return "http://127.0.0.1:" + std::to_string(m_port) + std::string{path};
}

} // namespace quillon::test
