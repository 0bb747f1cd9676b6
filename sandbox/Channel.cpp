#include "sandbox/Channel.h"

#include <boost/asio/buffer.hpp>
#include <boost/asio/ssl/stream.hpp>
#include <boost/asio/write.hpp>

#include <sys/socket.h>

#include <type_traits>
#include <utility>

namespace quillon::sandbox {

namespace {

namespace asio = boost::asio;
using asio::ip::tcp;
using boost::system::error_code;

// `Stream` is a socket, or a TLS stream over one.
template <typename Stream>
class StreamChannel : public Channel {
public:
    template <typename... Arguments>
    explicit StreamChannel(Arguments&&... arguments)
        : stream_{std::forward<Arguments>(arguments)...} {}

    bool open() override {
        error_code error;
        if constexpr (isTls) stream_.handshake(asio::ssl::stream_base::server, error);
        return !error;
    }
    std::size_t read(char* data, std::size_t size) override {
        error_code error;
        const std::size_t count = stream_.read_some(asio::buffer(data, size), error);
        return error ? 0 : count;
    }
    bool write(std::string_view bytes) override {
        error_code error;
        asio::write(stream_, asio::buffer(bytes.data(), bytes.size()), error);
        return !error;
    }
    void close() override {
        // The client's answer is not awaited, because it may never come.
        if constexpr (isTls) SSL_shutdown(stream_.native_handle());
        error_code ignored;
        stream_.lowest_layer().shutdown(tcp::socket::shutdown_send, ignored);
    }
    // Makes the later close of the socket send a reset. It is not closed here, because its number
    // must not be reused while other threads may still use it. The option is set without Asio,
    // which would otherwise undo it on destruction.
    void reset() override {
        const linger none{1, 0};
        setsockopt(descriptor(), SOL_SOCKET, SO_LINGER, &none, sizeof none);
    }
    int descriptor() override { return stream_.lowest_layer().native_handle(); }

private:
    static constexpr bool isTls = !std::is_same_v<Stream, tcp::socket>;

    Stream stream_;
};

} // namespace

std::unique_ptr<Channel> makeChannel(tcp::socket socket, asio::ssl::context* tls) {
    if (tls == nullptr) return std::make_unique<StreamChannel<tcp::socket>>(std::move(socket));
    using TlsStream = asio::ssl::stream<tcp::socket>;
    return std::make_unique<StreamChannel<TlsStream>>(std::move(socket), *tls);
}

} // namespace quillon::sandbox
