#include "platform/linux/http/CurlRequest.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <utility>

namespace quillon {

namespace {

/// libcurl asks for this much of a large body at once, in bytes.
constexpr long uploadBufferSize = 512L * 1024;

} // namespace

CurlRequest::CurlRequest(Method method, HttpRequest request, std::uint64_t listener,
                         std::function<void()> wake)
    : CurlTransfer{request.url, request.inactivityTimeout, listener},
      method_{method},
      request_{std::move(request)},
      stop_{request_.stop},
      onStop_{stop_, std::move(wake)} {
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

CurlTransfer::Progress CurlRequest::progress() const {
    curl_off_t bytes = 0;
    if (handle()) curl().easy_getinfo(handle(), CURLINFO_SIZE_UPLOAD_T, &bytes);
    return {.done = std::min<qint64>(bytes, total_), .total = total_};
}

void CurlRequest::finish(CURLcode code) {
    request_ = {};
    piece_ = offset_ = 0;
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
    const std::vector<QByteArray>& body = transfer.request_.body;
    const auto room = static_cast<qsizetype>(count);
    qsizetype filled = 0;
    while (filled < room && transfer.piece_ < static_cast<qsizetype>(body.size())) {
        const QByteArray& piece = body[static_cast<size_t>(transfer.piece_)];
        const qsizetype step = std::min(room - filled, piece.size() - transfer.offset_);
        std::memcpy(target + filled, piece.constData() + transfer.offset_,
                    static_cast<size_t>(step));
        filled += step;
        transfer.offset_ += step;
        if (transfer.offset_ < piece.size()) continue;
        ++transfer.piece_;
        transfer.offset_ = 0;
    }
    return static_cast<size_t>(filled);
}

int CurlRequest::seekBody(void* self, curl_off_t offset, int origin) {
    auto& transfer = *static_cast<CurlRequest*>(self);
    if (origin != SEEK_SET || offset < 0 || offset > transfer.total_) return CURL_SEEKFUNC_FAIL;
    // libcurl seeks back to repeat a request whose reused connection broke. A request that went out
    // completely may have been carried out, and a message must not arrive twice.
    const bool wentOut = transfer.piece_ == static_cast<qsizetype>(transfer.request_.body.size());
    if (wentOut) return CURL_SEEKFUNC_FAIL;
    transfer.piece_ = 0;
    transfer.offset_ = static_cast<qsizetype>(offset);
    for (const QByteArray& piece : transfer.request_.body) {
        if (transfer.offset_ < piece.size()) break;
        transfer.offset_ -= piece.size();
        ++transfer.piece_;
    }
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
