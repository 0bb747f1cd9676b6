// Reads HTTP/1.1 requests from a channel: the header first, so that a connection can be cut before
// its body, then the body straight into memory of its size.
#pragma once

#include "sandbox/Channel.h"
#include "sandbox/Http.h"

#include <boost/beast/core/flat_buffer.hpp>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace quillon::sandbox {

class RequestReader {
public:
    /// Larger bodies are refused unread, in bytes. A file of 50 MB with its parameters fits.
    static constexpr std::uint64_t biggestBody = 64'000'000;

    explicit RequestReader(Channel& channel) : channel_{channel} {}

    enum class Outcome { ready, closed, malformed, tooLarge };

    /// Fills in the request except for its body.
    Outcome readHeader(HttpRequest& request);

    /// Reads the body that the header announced, after answering an "Expect: 100-continue".
    Outcome readBody(HttpRequest& request);

    /// Ends the request and keeps its memory for the next body, because new pages take as much time
    /// as filling them.
    void recycle(HttpRequest& request);

    bool keepAlive() const { return keepAlive_; }

private:
    bool receive();
    Outcome readSizedBody(HttpRequest& request, std::size_t size);
    Outcome readChunkedBody(HttpRequest& request);
    std::optional<std::size_t> readChunkSize();
    bool readBytes(char* data, std::size_t size);
    std::optional<std::string> readLine();

    Channel& channel_;
    boost::beast::flat_buffer buffer_;
    bool keepAlive_ = false;
    bool chunked_ = false;
    bool expectsContinue_ = false;
    std::uint64_t length_ = 0;
    Body spare_;
};

} // namespace quillon::sandbox
