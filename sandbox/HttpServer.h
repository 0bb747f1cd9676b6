// Accepts connections on a loopback port, each served by a thread of its own.
#pragma once

#include "sandbox/Backend.h"
#include "sandbox/Certificate.h"
#include "sandbox/Channel.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>

#include <cstdint>
#include <list>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

namespace quillon::sandbox {

class HttpServer {
public:
    /// `certificate` is null for plain HTTP.
    HttpServer(Backend& backend, Certificate* certificate)
        : backend_{backend},
          certificate_{certificate} {}
    ~HttpServer() { stop(); }
    HttpServer(const HttpServer&) = delete;
    HttpServer& operator=(const HttpServer&) = delete;

    /// Listens on 127.0.0.1; port 0 stands for any free one. Throws boost::system::system_error
    /// when the port is taken. Returns the port.
    std::uint16_t start(std::uint16_t port);

    /// Breaks all connections and frees the port; returns when all threads have ended.
    void stop();

    /// Breaks all connections; new ones are still accepted.
    void dropConnections();

private:
    struct Client {
        std::unique_ptr<Channel> channel;
        bool ended = false;
        std::jthread thread; ///< the last member, so that it is joined before the others go
    };

    void acceptAll();
    void serve(Client& client, int number);

    Backend& backend_;
    Certificate* certificate_;
    boost::asio::io_context context_;
    std::optional<boost::asio::ip::tcp::acceptor> acceptor_;
    std::thread acceptThread_;
    std::mutex mutex_;
    std::list<Client> clients_;
    int accepted_ = 0;
};

} // namespace quillon::sandbox
