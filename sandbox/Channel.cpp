#include "sandbox/Channel.h"

#include <boost/asio/buffer.hpp>
#include <boost/asio/read.hpp>
#include <boost/asio/ssl/stream.hpp>
#include <boost/asio/write.hpp>

#include <sys/socket.h>

#include <utility>

namespace quillon::sandbox {

namespace {

namespace asio = boost::asio;
using asio::ip::tcp;
using boost::system::error_code;

// Makes the later close of the socket send a reset. It is not closed here, because its number must
// not be reused while other threads may still use it. The option is set without Asio, which would
// otherwise undo it on destruction.
void resetSocket(tcp::socket& socket) {
    const linger none{1, 0};
    setsockopt(socket.native_handle(), SOL_SOCKET, SO_LINGER, &none, sizeof none);
}

template <typename Stream>
std::size_t readSome(Stream& stream, char* data, std::size_t size) {
    error_code error;
    const std::size_t count = stream.read_some(asio::buffer(data, size), error);
    return error ? 0 : count;
}

template <typename Stream>
bool writeAll(Stream& stream, std::string_view bytes) {
    error_code error;
    asio::write(stream, asio::buffer(bytes.data(), bytes.size()), error);
    return !error;
}

class PlainChannel : public Channel {
public:
    explicit PlainChannel(tcp::socket socket) : socket_{std::move(socket)} {}

    bool open() override { return true; }
    std::size_t read(char* data, std::size_t size) override {
        return readSome(socket_, data, size);
    }
    bool write(std::string_view bytes) override { return writeAll(socket_, bytes); }
    void close() override {
        error_code ignored;
        socket_.shutdown(tcp::socket::shutdown_send, ignored);
    }
    void reset() override { resetSocket(socket_); }
    int descriptor() override { return socket_.native_handle(); }

private:
    tcp::socket socket_;
};

class TlsChannel : public Channel {
public:
    TlsChannel(tcp::socket socket, asio::ssl::context& context)
        : stream_{std::move(socket), context} {}

    bool open() override {
        error_code error;
        stream_.handshake(asio::ssl::stream_base::server, error);
        return !error;
    }
    std::size_t read(char* data, std::size_t size) override {
        return readSome(stream_, data, size);
    }
    bool write(std::string_view bytes) override { return writeAll(stream_, bytes); }
    void close() override {
        // The client's answer is not awaited, because it may never come.
        SSL_shutdown(stream_.native_handle());
        error_code ignored;
        stream_.next_layer().shutdown(tcp::socket::shutdown_send, ignored);
    }
    void reset() override { resetSocket(stream_.next_layer()); }
    int descriptor() override { return stream_.next_layer().native_handle(); }

private:
    asio::ssl::stream<tcp::socket> stream_;
};

} // namespace

std::unique_ptr<Channel> makeChannel(tcp::socket socket, asio::ssl::context* tls) {
    if (tls != nullptr) return std::make_unique<TlsChannel>(std::move(socket), *tls);
    return std::make_unique<PlainChannel>(std::move(socket));
}

} // namespace quillon::sandbox
