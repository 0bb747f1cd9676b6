#pragma once

#include "platform/linux/files/Descriptor.h"
#include "platform/linux/http/CurlTransfer.h"

#include <QPromise>

#include <optional>

namespace quillon {

/// A download from a server to a file.
class CurlDownload final : public CurlTransfer {
public:
    CurlDownload(HttpDownload download, std::uint64_t listener, std::function<void()> wake);

    [[nodiscard]] QFuture<DownloadOutcome> future() const { return promise_.future(); }

    /// Counts the received bytes.
    [[nodiscard]] Progress progress() const override;
    void finish(CURLcode code) override;

private:
    bool describe(const CurlTransportOptions& options) override;
    static size_t takeBytes(char* bytes, size_t size, size_t count, void* self);
    void noteFileError(int error);
    [[nodiscard]] DownloadOutcome outcome(CURLcode code) const;
    HttpDownload download_;
    qint64 received_ = 0;
    Descriptor file_;
    /// A failure on this side, as opposed to the network or the server.
    std::optional<DownloadOutcome> trouble_;
    QPromise<DownloadOutcome> promise_;
};

} // namespace quillon
