#pragma once

#include "platform/linux/http/CurlTransfer.h"

#include <QPromise>

#include <optional>

namespace quillon {

/// A request for a page of which nothing but the way to it and the server's time is kept.
class CurlLook final : public CurlTransfer {
public:
    struct Request {
        std::string url;
        /// For the whole transfer.
        std::chrono::milliseconds limit;
        std::function<void(qint64, qint64)> progress; ///< never called
    };

    CurlLook(Request request, std::uint64_t listener, std::function<void()> wake);

    [[nodiscard]] QFuture<HttpLook> future() const { return promise_.future(); }

    [[nodiscard]] Progress progress() const override { return {}; }
    void finish(CURLcode code) override;

private:
    bool describe(const CurlTransportOptions& options) override;
    static size_t takeHeader(char* bytes, size_t one, size_t count, void* self);
    [[nodiscard]] HttpLook::Outcome outcome(CURLcode code) const;

    std::chrono::milliseconds limit_;
    std::optional<std::chrono::system_clock::time_point> time_;
    QPromise<HttpLook> promise_;
};

} // namespace quillon
