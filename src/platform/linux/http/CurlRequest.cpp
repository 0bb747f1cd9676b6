#include "platform/linux/http/CurlRequest.h"

#include <QByteArrayView>

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

namespace quillon {

namespace {

/// libcurl asks for this much of a large body at once, in bytes.
constexpr long uploadBufferSize = 512L * 1024;

/// How a transfer ends whose connection breaks.
constexpr std::array breaks{CURLE_SEND_ERROR, CURLE_RECV_ERROR, CURLE_GOT_NOTHING, CURLE_HTTP2,
                            CURLE_HTTP2_STREAM};

} // namespace

CurlRequest::CurlRequest(Method method, HttpRequest request, std::uint64_t listener,
                         std::function<void()> wake)
    : CurlTransfer{request.url, request.inactivityTimeout, listener, request.stop, std::move(wake)},
      method_{method},
      request_{std::move(request)} {
    if (method_ == Method::get) request_.body.clear();
    for (const QByteArray& piece : request_.body)
        total_ += piece.size();
    promise_.start();
}

bool CurlRequest::setHeaders() {
    // Without "Expect", an upload does not wait one round trip for the server's consent.
    std::vector<std::string> lines{"Expect:"};
    for (const auto& [name, value] : request_.headers) {
        // libcurl leaves out a header that is given as "Name:", even its own "Accept".
        std::string& line = lines.emplace_back(name).append(":");
        if (!value.empty()) line.append(" ").append(value);
    }
    for (const std::string& line : lines) {
        curl_slist* longer = curl().slist_append(headers_.get(), line.c_str());
        if (!longer) return false;
        static_cast<void>(headers_.release());
        headers_.reset(longer);
    }
    return true;
}

bool CurlRequest::describe(const CurlTransportOptions& options) {
    if (!setHeaders()) return false;
    method_ == Method::post ? describeBody() : fetch(options);
    curl().easy_setopt(handle(), CURLOPT_TIMEOUT_MS,
                       static_cast<long>(request_.totalTimeout.count()));
    curl().easy_setopt(handle(), CURLOPT_HTTPHEADER, headers_.get());
    curl().easy_setopt(handle(), CURLOPT_WRITEFUNCTION, &CurlRequest::takeReply);
    curl().easy_setopt(handle(), CURLOPT_WRITEDATA, this);
    return true;
}

void CurlRequest::describeBody() {
    curl().easy_setopt(handle(), CURLOPT_POST, 1L);
    curl().easy_setopt(handle(), CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(total_));
    if (total_ > uploadBufferSize)
        curl().easy_setopt(handle(), CURLOPT_UPLOAD_BUFFERSIZE, uploadBufferSize);
    curl().easy_setopt(handle(), CURLOPT_READFUNCTION, &CurlRequest::readBody);
    curl().easy_setopt(handle(), CURLOPT_READDATA, this);
    curl().easy_setopt(handle(), CURLOPT_SEEKFUNCTION, &CurlRequest::seekBody);
    curl().easy_setopt(handle(), CURLOPT_SEEKDATA, this);
}

bool CurlRequest::repeat(CURLcode code) {
    long connections = 0;
    curl().easy_getinfo(handle(), CURLINFO_NUM_CONNECTS, &connections);
    // In the second case libcurl has made the new connection, but seekBody() has kept it from going
    // on.
    const bool broke = (connections == 0 && std::ranges::find(breaks, code) != breaks.end()) ||
                       code == CURLE_SEND_FAIL_REWIND;
    if (!broke || !request_.onlyReads || std::exchange(repeated_, true)) return false;
    taken_ = 0;
    return curl().easy_setopt(handle(), CURLOPT_FRESH_CONNECT, 1L) == CURLE_OK;
}

CurlTransfer::Progress CurlRequest::progress() const {
    curl_off_t bytes = 0;
    if (handle()) curl().easy_getinfo(handle(), CURLINFO_SIZE_UPLOAD_T, &bytes);
    return {.done = std::min<qint64>(bytes, total_), .total = total_};
}

void CurlRequest::finish(CURLcode code) {
    request_ = {};
    std::optional<HttpReply> reply;
    if (code == CURLE_OK) {
        reply_.status = static_cast<int>(status());
        reply = std::move(reply_);
    }
    promise_.addResult(std::move(reply));
    promise_.finish();
}

size_t CurlRequest::readBody(char* target, size_t /*one*/, size_t count, void* self) {
    auto& transfer = *static_cast<CurlRequest*>(self);
    const auto room = static_cast<qint64>(count);
    qint64 filled = 0;
    qint64 skip = transfer.taken_;
    for (const QByteArray& piece : transfer.request_.body) {
        const QByteArrayView rest = QByteArrayView{piece}.sliced(std::min(skip, piece.size()));
        const auto part = rest.first(std::min(rest.size(), room - filled));
        std::copy_n(part.data(), part.size(), target + filled);
        filled += part.size();
        skip -= piece.size() - rest.size();
    }
    transfer.taken_ += filled;
    return static_cast<size_t>(filled);
}

int CurlRequest::seekBody(void* self, curl_off_t offset, int origin) {
    auto& transfer = *static_cast<CurlRequest*>(self);
    if (origin != SEEK_SET || offset < 0 || offset > transfer.total_) return CURL_SEEKFUNC_FAIL;
    // libcurl seeks back to repeat a request whose reused connection broke. A request that went out
    // completely may have been carried out, and a message must not arrive twice. See repeat().
    if (transfer.taken_ == transfer.total_) return CURL_SEEKFUNC_FAIL;
    transfer.taken_ = offset;
    return CURL_SEEKFUNC_OK;
}

size_t CurlRequest::takeReply(char* bytes, size_t /*one*/, size_t count, void* self) {
    QByteArray& body = static_cast<CurlRequest*>(self)->reply_.body;
    const auto length = static_cast<qsizetype>(count);
    if (body.size() + length > HttpTransport::maximumReplySize) return 0;
    body.append(bytes, length);
    return count;
}

} // namespace quillon
