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
        explicit Connection(int socket) : socket_{socket} {}

        /// The next request, head and body as they came; what there is when the client goes away.
        std::string request();

        /// The next `size` bytes; fewer when the client goes away.
        std::string receive(std::size_t size);

        /// False when the client has gone away.
        bool send(std::string_view bytes);

        /// Sends a whole reply, and leaves the connection open.
        bool reply(int status, std::string_view body, std::string_view headers = {});

        /// Waits until the client goes away.
        void awaitEnd();

    private:
        int socket_;
    };

    explicit RawServer(std::function<void(Connection&)> serve);
    RawServer(const RawServer&) = delete;
    RawServer& operator=(const RawServer&) = delete;

    /// Cuts what is still open.
    ~RawServer();

    [[nodiscard]] int port() const { return port_; }
    [[nodiscard]] std::string url(std::string_view path = "/") const;

    /// How many connections were made so far.
    [[nodiscard]] int connections() const { return connections_; }

private:
    void accept();

    std::function<void(Connection&)> serve_;
    int listener_ = -1;
    int port_ = 0;
    std::atomic<int> connections_ = 0;
    std::list<int> sockets_;
    std::list<std::thread> servants_;
    std::thread accepting_;
};

} // namespace quillon::test
