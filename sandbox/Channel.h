// One accepted connection as a stream of bytes, in the clear or over TLS.
#pragma once

#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/ssl/context.hpp>

#include <cstddef>
#include <memory>
#include <string_view>

namespace quillon::sandbox {

/// All calls block; a call fails (false or 0) once the connection is gone.
class Channel {
public:
    virtual ~Channel() = default;

    /// Prepares the stream; false if the TLS handshake fails.
    virtual bool open() = 0;
    /// Reads at least one byte and at most `size`; 0 at the end.
    virtual std::size_t read(char* data, std::size_t size) = 0;
    virtual bool write(std::string_view bytes) = 0;
    /// Ends the stream properly.
    virtual void close() = 0;
    /// Makes the connection end by a TCP reset, as after a crash, once this object goes.
    virtual void reset() = 0;
    virtual int descriptor() = 0;
};

/// `tls` is null for a connection in the clear.
std::unique_ptr<Channel> makeChannel(boost::asio::ip::tcp::socket socket,
                                     boost::asio::ssl::context* tls);

} // namespace quillon::sandbox
