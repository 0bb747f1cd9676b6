#include "platform/linux/CurlTransfer.h"

#include "platform/linux/Environment.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>

namespace quillon {

namespace {

/// How much libcurl asks of the body at once, in bytes.
constexpr long uploadBufferSize = 512L * 1024;

void trustCertificates(CURL* handle, const std::filesystem::path& certificates) {
    if (!certificates.empty()) {
        curl_easy_setopt(handle, CURLOPT_CAINFO, certificates.c_str());
        curl_easy_setopt(handle, CURLOPT_CAPATH, nullptr);
        return;
    }
    if (const auto file = environment("SSL_CERT_FILE"))
        curl_easy_setopt(handle, CURLOPT_CAINFO, file->c_str());
    if (const auto folder = environment("SSL_CERT_DIR"))
        curl_easy_setopt(handle, CURLOPT_CAPATH, folder->c_str());
}

} // namespace

CurlTransfer::CurlTransfer(HttpRequest request, std::uint64_t listener)
    : request_{std::move(request)},
      listener_{listener} {
    for (const QByteArray& piece : request_.body)
        total_ += piece.size();
    promise_.start();
}

bool CurlTransfer::setHeaders() {
    // A server that knows "Expect" would make each upload wait for one more round trip.
    std::vector<std::string> lines{"Expect:"};
    for (const auto& [name, value] : request_.headers) {
        // libcurl takes "Name:" as an order to leave the header out, its own "Accept" included.
        std::string& line = lines.emplace_back(name).append(":");
        if (!value.empty()) line.append(" ").append(value);
    }
    for (const std::string& line : lines) {
        curl_slist* longer = curl_slist_append(headers_.get(), line.c_str());
        if (!longer) return false;
        static_cast<void>(headers_.release());
        headers_.reset(longer);
    }
    return true;
}

bool CurlTransfer::prepare(const CurlTransportOptions& options) {
    movedAt_ = std::chrono::steady_clock::now();
    handle_.reset(curl_easy_init());
    CURL* handle = handle_.get();
    if (!handle || !setHeaders()) return false;

    curl_easy_setopt(handle, CURLOPT_PROTOCOLS_STR, options.allowHttp ? "http,https" : "https");
    curl_easy_setopt(handle, CURLOPT_FOLLOWLOCATION, 0L);
    curl_easy_setopt(handle, CURLOPT_PATH_AS_IS, 1L);
    curl_easy_setopt(handle, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_2TLS));
    curl_easy_setopt(handle, CURLOPT_NOSIGNAL, 1L);
    // Ends a transfer without waiting for the name server that it still waits for.
    curl_easy_setopt(handle, CURLOPT_QUICK_EXIT, 1L);
    // The time-out is by inactivity alone.
    curl_easy_setopt(handle, CURLOPT_CONNECTTIMEOUT_MS, 24L * 60 * 60 * 1000);
    trustCertificates(handle, options.trustedCertificates);

    curl_easy_setopt(handle, CURLOPT_POST, 1L);
    curl_easy_setopt(handle, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(total_));
    if (total_ > uploadBufferSize)
        curl_easy_setopt(handle, CURLOPT_UPLOAD_BUFFERSIZE, uploadBufferSize);
    curl_easy_setopt(handle, CURLOPT_HTTPHEADER, headers_.get());
    curl_easy_setopt(handle, CURLOPT_READFUNCTION, &CurlTransfer::readBody);
    curl_easy_setopt(handle, CURLOPT_READDATA, this);
    curl_easy_setopt(handle, CURLOPT_SEEKFUNCTION, &CurlTransfer::seekBody);
    curl_easy_setopt(handle, CURLOPT_SEEKDATA, this);
    curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, &CurlTransfer::takeReply);
    curl_easy_setopt(handle, CURLOPT_WRITEDATA, this);
    curl_easy_setopt(handle, CURLOPT_PRIVATE, this);
    return curl_easy_setopt(handle, CURLOPT_URL, request_.url.c_str()) == CURLE_OK;
}

std::uint64_t CurlTransfer::movement() const {
    // Bytes of either direction, and the moments at which the host was found, the connection stood
    // and its encryption was agreed: each grows when something has moved.
    constexpr std::array counters{CURLINFO_SIZE_UPLOAD_T,     CURLINFO_SIZE_DOWNLOAD_T,
                                  CURLINFO_NAMELOOKUP_TIME_T, CURLINFO_CONNECT_TIME_T,
                                  CURLINFO_APPCONNECT_TIME_T, CURLINFO_PRETRANSFER_TIME_T};
    std::uint64_t sum = 0;
    for (const CURLINFO counter : counters) {
        curl_off_t value = 0;
        curl_easy_getinfo(handle_.get(), counter, &value);
        sum += static_cast<std::uint64_t>(value);
    }
    long headers = 0;
    curl_easy_getinfo(handle_.get(), CURLINFO_HEADER_SIZE, &headers);
    return sum + static_cast<std::uint64_t>(headers);
}

CurlTransfer::Moment CurlTransfer::deadline(Moment now) {
    if (const std::uint64_t current = movement(); current != movement_) {
        movement_ = current;
        movedAt_ = now;
    }
    return movedAt_ + request_.inactivityTimeout;
}

qint64 CurlTransfer::sent() const {
    curl_off_t bytes = 0;
    if (handle_) curl_easy_getinfo(handle_.get(), CURLINFO_SIZE_UPLOAD_T, &bytes);
    return std::min<qint64>(bytes, total_);
}

void CurlTransfer::finish(CURLcode code) {
    long status = 0;
    if (handle_) curl_easy_getinfo(handle_.get(), CURLINFO_RESPONSE_CODE, &status);
    request_ = {};
    piece_ = offset_ = 0;
    std::optional<HttpReply> reply;
    if (code == CURLE_OK) {
        reply_.status = static_cast<int>(status);
        reply = std::move(reply_);
    }
    promise_.addResult(std::move(reply));
    promise_.finish();
}

size_t CurlTransfer::readBody(char* target, size_t /*one*/, size_t count, void* self) {
    auto& transfer = *static_cast<CurlTransfer*>(self);
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

int CurlTransfer::seekBody(void* self, curl_off_t offset, int origin) {
    auto& transfer = *static_cast<CurlTransfer*>(self);
    if (origin != SEEK_SET || offset < 0 || offset > transfer.total_) return CURL_SEEKFUNC_FAIL;
    // libcurl goes back to the start to repeat a request whose kept connection broke. One that went
    // out whole may have been carried out, and a message must not arrive twice.
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

size_t CurlTransfer::takeReply(char* bytes, size_t /*one*/, size_t count, void* self) {
    QByteArray& body = static_cast<CurlTransfer*>(self)->reply_.body;
    const auto length = static_cast<qsizetype>(count);
    if (body.size() + length > HttpTransport::maximumReplySize) return 0;
    body.append(bytes, length);
    return count;
}

} // namespace quillon
