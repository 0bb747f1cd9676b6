#pragma once

#include <atomic>
#include <functional>
#include <list>
#include <string>
#include <string_view>
#include <thread>

namespace quillon::test {

/// A server on the loopback interface that answers with whatever bytes a test wants, right or
/// wrong. Each connection is served on a thread of its own.
class RawServer {
public:
    /// One accepted connection.
    class Connection {
    public:
        explicit Connection(int socket) : m_socket{socket} {}

        /// The next request, head and body as they came; what there is when the client goes away.
        std::string request();

        /// The next bytes, at most `limit`; empty when the client has gone away.
        std::string receive(std::size_t limit);

        /// False when the client has gone away.
        bool send(std::string_view bytes);

        /// Sends a whole reply, and leaves the connection open.
        bool reply(int status, std::string_view body, std::string_view headers = {});

        /// Waits until the client goes away.
        void awaitEnd();

    private:
        int m_socket;
        std::string m_received;
    };

    explicit RawServer(std::function<void(Connection&)> serve);
    RawServer(const RawServer&) = delete;
    RawServer& operator=(const RawServer&) = delete;

    /// Cuts what is still open.
    ~RawServer();

    [[nodiscard]] int port() const { return m_port; }
    [[nodiscard]] std::string url(std::string_view path = "/") const;

    /// How many connections were made so far.
    [[nodiscard]] int connections() const { return m_connections; }

private:
    void accept();

    std::function<void(Connection&)> m_serve;
    int m_listener = -1;
    int m_port = 0;
    std::atomic<int> m_connections = 0;
    std::list<int> m_sockets;
    std::list<std::thread> m_servants;
    std::thread m_accepting;
};

} // namespace quillon::test
