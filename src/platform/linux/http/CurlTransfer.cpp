#include "platform/linux/http/CurlTransfer.h"

#include "base/Environment.h"
#include "base/ThisMachine.h"
#include "platform/linux/http/Certificates.h"

#include <array>
#include <string_view>
#include <utility>

namespace quillon {

namespace {

constexpr long maximumRedirects = 10;

/// The bundle that libcurl needs besides this folder; empty if it needs none.
std::filesystem::path bundleBeside(const std::filesystem::path& folder) {
    const auto place = [](const char* name) { return std::filesystem::path{name ? name : ""}; };
    const curl_version_info_data& libcurl = *curl().version_info(CURLVERSION_NOW);
    const CertificatePlaces system{.bundle = systemBundle(place(libcurl.cainfo)),
                                   .folder = place(libcurl.capath)};
    // Other TLS libraries read the whole folder, or none.
    const bool findsByHash =
        libcurl.ssl_version && std::string_view{libcurl.ssl_version}.starts_with("OpenSSL/");
    const bool isEnough =
        findsByHash && replacesBundle(folder.empty() ? system.folder : folder, system);
    return isEnough ? std::filesystem::path{} : system.bundle;
}

void trustCertificates(CURL* handle, const std::filesystem::path& certificates) {
    if (!certificates.empty()) {
        curl().easy_setopt(handle, CURLOPT_CAINFO, certificates.c_str());
        curl().easy_setopt(handle, CURLOPT_CAPATH, nullptr);
        return;
    }
    const auto folder = environment("SSL_CERT_DIR");
    if (folder) curl().easy_setopt(handle, CURLOPT_CAPATH, folder->c_str());
    if (const auto file = environment("SSL_CERT_FILE")) {
        curl().easy_setopt(handle, CURLOPT_CAINFO, file->c_str());
        return;
    }
    // Looked up once, since it takes a millisecond.
    static const std::filesystem::path bundle = bundleBeside(folder.value_or(""));
    curl().easy_setopt(handle, CURLOPT_CAINFO, bundle.empty() ? nullptr : bundle.c_str());
}

/// The host that libcurl will connect to; empty if the URL is malformed.
std::string hostOf(const std::string& url) {
    std::string host;
    CURLU* parsed = curl().url();
    char* part = nullptr;
    if (parsed && curl().url_set(parsed, CURLUPART_URL, url.c_str(), 0) == CURLUE_OK &&
        curl().url_get(parsed, CURLUPART_HOST, &part, 0) == CURLUE_OK)
        host = part;
    curl().free(part);
    curl().url_cleanup(parsed);
    return host;
}

} // namespace

CurlTransfer::CurlTransfer(std::string url, std::chrono::milliseconds inactivityTimeout,
                           std::uint64_t listener, std::stop_token stop, std::function<void()> wake)
    : url_{std::move(url)},
      inactivityTimeout_{inactivityTimeout},
      listener_{listener},
      stop_{std::move(stop)},
      onStop_{stop_, std::move(wake)} {}

bool CurlTransfer::prepare(const CurlTransportOptions& options) {
    movedAt_ = std::chrono::steady_clock::now();
    handle_.reset(curl().easy_init());
    CURL* handle = handle_.get();
    if (!handle) return false;

    curl().easy_setopt(handle, CURLOPT_PROTOCOLS_STR, options.allowHttp ? "http,https" : "https");
    curl().easy_setopt(handle, CURLOPT_FOLLOWLOCATION, 0L);
    curl().easy_setopt(handle, CURLOPT_PATH_AS_IS, 1L);
    curl().easy_setopt(handle, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_2TLS));
    curl().easy_setopt(handle, CURLOPT_NOSIGNAL, 1L);
    // Lets a transfer end while a name server has not answered yet.
    curl().easy_setopt(handle, CURLOPT_QUICK_EXIT, 1L);
    // deadline() alone ends transfers, so libcurl's own limit for connecting is put out of reach.
    curl().easy_setopt(handle, CURLOPT_CONNECTTIMEOUT_MS, 24L * 60 * 60 * 1000);
    trustCertificates(handle, options.trustedCertificates);
    curl().easy_setopt(handle, CURLOPT_PRIVATE, this);
    return describe(options) && curl().easy_setopt(handle, CURLOPT_URL, url_.c_str()) == CURLE_OK;
}

void CurlTransfer::fetch(const CurlTransportOptions& options) {
    // libcurl resolves "localhost" itself, so no name server can send it elsewhere.
    const bool near = isThisMachine(hostOf(url_));
    const bool allowHttp = options.allowHttp || near;
    curl().easy_setopt(handle(), CURLOPT_PROTOCOLS_STR, allowHttp ? "http,https" : "https");
    // A proxy would take the request to another machine.
    if (near) curl().easy_setopt(handle(), CURLOPT_NOPROXY, "*");
    curl().easy_setopt(handle(), CURLOPT_REDIR_PROTOCOLS_STR, "https");
    curl().easy_setopt(handle(), CURLOPT_FOLLOWLOCATION, 1L);
    curl().easy_setopt(handle(), CURLOPT_MAXREDIRS, maximumRedirects);
    curl().easy_setopt(handle(), CURLOPT_HTTPGET, 1L);
}

long CurlTransfer::status() const {
    long status = 0;
    if (handle()) curl().easy_getinfo(handle(), CURLINFO_RESPONSE_CODE, &status);
    return status;
}

std::uint64_t CurlTransfer::movement() const {
    // The sum of the bytes in either direction and the times at which the host was found, the
    // connection was made and its encryption was agreed. It grows whenever something has moved.
    constexpr std::array counters{CURLINFO_SIZE_UPLOAD_T,     CURLINFO_SIZE_DOWNLOAD_T,
                                  CURLINFO_NAMELOOKUP_TIME_T, CURLINFO_CONNECT_TIME_T,
                                  CURLINFO_APPCONNECT_TIME_T, CURLINFO_PRETRANSFER_TIME_T};
    std::uint64_t sum = 0;
    for (const CURLINFO counter : counters) {
        curl_off_t value = 0;
        curl().easy_getinfo(handle_.get(), counter, &value);
        sum += static_cast<std::uint64_t>(value);
    }
    long headers = 0;
    curl().easy_getinfo(handle_.get(), CURLINFO_HEADER_SIZE, &headers);
    return sum + static_cast<std::uint64_t>(headers);
}

CurlTransfer::Moment CurlTransfer::deadline(Moment now) {
    if (const std::uint64_t current = movement(); current != movement_) {
        movement_ = current;
        movedAt_ = now;
    }
    return movedAt_ + inactivityTimeout_;
}

} // namespace quillon
