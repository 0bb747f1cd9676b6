#include "sandbox/HttpServer.h"

#include "sandbox/Connection.h"

#include <sys/socket.h>

#include <utility>

namespace quillon::sandbox {

using boost::asio::ip::tcp;

std::uint16_t HttpServer::start(std::uint16_t port) {
    const tcp::endpoint endpoint{boost::asio::ip::address_v4::loopback(), port};
    acceptor_.emplace(context_, endpoint, true);
    acceptThread_ = std::thread{[this] { acceptAll(); }};
    return acceptor_->local_endpoint().port();
}

void HttpServer::stop() {
    if (!acceptor_) return;
    // This wakes the accepting thread; close() would not.
    ::shutdown(acceptor_->native_handle(), SHUT_RDWR);
    acceptThread_.join();
    acceptor_.reset();
    dropConnections();
    std::list<Client> ending; // their threads are joined without the lock, which they need
    const std::lock_guard lock{mutex_};
    ending.swap(clients_);
}

void HttpServer::dropConnections() {
    const std::lock_guard lock{mutex_};
    for (Client& client : clients_) {
        if (!client.ended) ::shutdown(client.channel->descriptor(), SHUT_RDWR);
    }
}

void HttpServer::acceptAll() {
    while (true) {
        boost::system::error_code error;
        tcp::socket socket = acceptor_->accept(error);
        if (error) return;
        socket.set_option(tcp::no_delay{true}, error);
        auto* const tls = certificate_ != nullptr ? &certificate_->context() : nullptr;
        auto channel = makeChannel(std::move(socket), tls);
        const int number = ++accepted_;
        if (backend_.faults.takeForConnection()) {
            channel->reset();
            continue;
        }
        const std::lock_guard lock{mutex_};
        clients_.remove_if([](const Client& old) { return old.ended; });
        Client& client = clients_.emplace_back();
        client.channel = std::move(channel);
        client.thread = std::jthread{[this, &client, number] { serve(client, number); }};
    }
}

void HttpServer::serve(Client& client, int number) {
    Connection{*client.channel, backend_, number}.run();
    const std::lock_guard lock{mutex_};
    client.channel.reset();
    client.ended = true;
}

} // namespace quillon::sandbox
