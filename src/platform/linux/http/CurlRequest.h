#pragma once

#include "platform/linux/http/CurlTransfer.h"

#include <QPromise>

namespace quillon {

/// A request whose reply is kept in memory, with the buffers libcurl reads from and writes to.
class CurlRequest final : public CurlTransfer {
public:
    enum class Method { post, get };

    CurlRequest(Method method, HttpRequest request, std::uint64_t listener,
                std::function<void()> wake);

    [[nodiscard]] QFuture<std::optional<HttpReply>> future() const { return promise_.future(); }

    bool repeat(CURLcode code) override;
    /// Counts the sent bytes of the body.
    [[nodiscard]] Progress progress() const override;
    void finish(CURLcode code) override;

private:
    bool describe(const CurlTransportOptions& options) override;
    bool setHeaders();
    void describeBody();
    static size_t readBody(char* target, size_t size, size_t count, void* self);
    static int seekBody(void* self, curl_off_t offset, int origin);
    static size_t takeReply(char* bytes, size_t size, size_t count, void* self);

    struct FreeList {
        void operator()(curl_slist* list) const { curl().slist_free_all(list); }
    };

    Method method_;
    HttpRequest request_;
    qint64 total_ = 0;
    qint64 taken_ = 0; ///< bytes of the body that libcurl has taken
    bool repeated_ = false;
    HttpReply reply_;
    QPromise<std::optional<HttpReply>> promise_;
    std::unique_ptr<curl_slist, FreeList> headers_;
};

} // namespace quillon
