#pragma once

#include "platform/HttpTransport.h"

#include <filesystem>
#include <memory>

namespace quillon {

/// Deviations from the usual behaviour of a CurlTransport.
struct CurlTransportOptions {
    /// Allows http beside https, for a Bot API server on a trusted network.
    bool allowHttp = false;
    /// A PEM file with the certificates to trust instead of the system's.
    std::filesystem::path trustedCertificates{};
};

/// HTTP through libcurl: every transfer runs on one worker thread and shares its connections, which
/// stay open between requests. Proxies come from the environment (https_proxy, all_proxy,
/// no_proxy), trusted certificates from SSL_CERT_FILE and SSL_CERT_DIR where these are set.
class CurlTransport final : public HttpTransport {
public:
    explicit CurlTransport(CurlTransportOptions options = {});

    /// Ends all transfers: their futures finish with none, and their progress is no longer
    /// reported.
    ~CurlTransport() override;

    /// Call these on the thread that made the transport. Progress is reported there.
    [[nodiscard]] QFuture<std::optional<HttpReply>> post(HttpRequest request) override;
    [[nodiscard]] QFuture<std::optional<HttpReply>> get(HttpRequest request) override;
    [[nodiscard]] QFuture<DownloadOutcome> download(HttpDownload download) override;
    [[nodiscard]] QFuture<HttpLook> look(std::string url, std::chrono::milliseconds limit) override;

private:
    class ProgressListeners;
    class Worker;

    template <typename Transfer, typename Request>
    auto start(Request request, auto... kind);

    std::unique_ptr<ProgressListeners> listeners_;
    std::unique_ptr<Worker> worker_;
};

} // namespace quillon
