#include "sandbox/RequestReader.h"

#include "sandbox/Text.h"

#include <boost/beast/http/empty_body.hpp>
#include <boost/beast/http/parser.hpp>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <limits>
#include <utility>

namespace quillon::sandbox {

namespace {

namespace http = boost::beast::http;

constexpr std::size_t readAhead = std::size_t{64} * 1024;

std::string text(boost::beast::string_view view) {
    return {view.data(), view.size()};
}

} // namespace

bool RequestReader::receive() {
    const auto space = buffer_.prepare(readAhead);
    const std::size_t count = channel_.read(static_cast<char*>(space.data()), space.size());
    buffer_.commit(count);
    return count > 0;
}

RequestReader::Outcome RequestReader::readHeader(HttpRequest& request) {
    http::request_parser<http::empty_body> parser;
    // boost::none would not do: for Beast 1.74, every length exceeds it.
    parser.body_limit(std::numeric_limits<std::uint64_t>::max());
    while (!parser.is_header_done()) {
        boost::system::error_code error;
        if (buffer_.size() > 0) buffer_.consume(parser.put(buffer_.data(), error));
        if (error && error != http::error::need_more) return Outcome::malformed;
        if (!parser.is_header_done() && !receive()) return Outcome::closed;
    }
    const auto& header = parser.get();
    request.time = std::chrono::system_clock::now();
    request.verb = text(header.method_string());
    const std::string target = text(header.target());
    const auto mark = std::min(target.find('?'), target.size());
    request.path = target.substr(0, mark);
    request.query = target.substr(std::min(mark + 1, target.size()));
    for (const auto& field : header)
        request.headers[lowered(text(field.name_string()))] = text(field.value());
    keepAlive_ = parser.keep_alive();
    chunked_ = parser.chunked();
    length_ = parser.content_length().value_or(0);
    expectsContinue_ = lowered(request.header("expect")) == "100-continue";
    return length_ > biggestBody ? Outcome::tooLarge : Outcome::ready;
}

RequestReader::Outcome RequestReader::readBody(HttpRequest& request) {
    if (expectsContinue_ && !channel_.write("HTTP/1.1 100 Continue\r\n\r\n"))
        return Outcome::closed;
    return chunked_ ? readChunkedBody(request)
                    : readSizedBody(request, static_cast<std::size_t>(length_));
}

RequestReader::Outcome RequestReader::readSizedBody(HttpRequest& request, std::size_t size) {
    if (size > spare_.capacity) spare_ = {std::make_unique_for_overwrite<char[]>(size), 0, size};
    request.body = std::exchange(spare_, {});
    request.body.size = size;
    return readBytes(request.body.bytes.get(), size) ? Outcome::ready : Outcome::closed;
}

void RequestReader::recycle(HttpRequest& request) {
    request.finish();
    spare_ = std::exchange(request.body, {});
}

// Takes the bytes that were read ahead, then reads from the channel directly.
bool RequestReader::readBytes(char* data, std::size_t size) {
    const std::size_t ahead = std::min(size, buffer_.size());
    if (ahead > 0) std::memcpy(data, buffer_.data().data(), ahead);
    buffer_.consume(ahead);
    for (std::size_t done = ahead; done < size;) {
        const std::size_t count = channel_.read(data + done, size - done);
        if (count == 0) return false;
        done += count;
    }
    return true;
}

std::optional<std::string> RequestReader::readLine() {
    constexpr std::size_t longestLine = 8192;
    while (true) {
        const auto* const data = static_cast<const char*>(buffer_.data().data());
        const std::string_view ready{data, buffer_.size()};
        const auto end = ready.find("\r\n");
        if (end != std::string_view::npos) {
            std::string line{ready.substr(0, end)};
            buffer_.consume(end + 2);
            return line;
        }
        if (ready.size() > longestLine || !receive()) return std::nullopt;
    }
}

std::optional<std::size_t> RequestReader::readChunkSize() {
    const auto line = readLine();
    if (!line) return std::nullopt;
    std::size_t size = 0;
    const auto [last, error] = std::from_chars(line->data(), line->data() + line->size(), size, 16);
    if (error != std::errc{} || last == line->data()) return std::nullopt;
    return size;
}

RequestReader::Outcome RequestReader::readChunkedBody(HttpRequest& request) {
    std::string body;
    while (true) {
        const auto size = readChunkSize();
        if (!size) return Outcome::malformed;
        if (*size > biggestBody - body.size()) return Outcome::tooLarge;
        const std::size_t begin = body.size();
        body.resize(begin + *size);
        if (!readBytes(body.data() + begin, *size)) return Outcome::closed;
        // Trailing header lines may come between the last chunk and the empty line.
        auto line = readLine();
        while (*size == 0 && line && !line->empty())
            line = readLine();
        if (!line || !line->empty()) return Outcome::malformed;
        if (*size == 0) break;
    }
    request.body = {std::make_unique_for_overwrite<char[]>(body.size()), body.size(), body.size()};
    std::ranges::copy(body, request.body.bytes.get());
    return Outcome::ready;
}

} // namespace quillon::sandbox
