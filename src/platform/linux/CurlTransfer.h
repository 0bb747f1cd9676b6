#pragma once

#include "platform/linux/CurlTransport.h"

#include <QPromise>

#include <curl/curl.h>

#include <chrono>
#include <cstdint>
#include <memory>

namespace quillon {

/// One request on its way through libcurl, with the buffers libcurl reads from and writes to. Stays
/// at its address, which libcurl knows.
class CurlTransfer {
public:
    using Moment = std::chrono::steady_clock::time_point;

    /// `listener` is the number of whoever is told the progress; 0 when nobody is.
    CurlTransfer(HttpRequest request, std::uint64_t listener);
    CurlTransfer(const CurlTransfer&) = delete;
    CurlTransfer& operator=(const CurlTransfer&) = delete;
    ~CurlTransfer() = default;

    [[nodiscard]] std::uint64_t listener() const { return listener_; }
    [[nodiscard]] qint64 total() const { return total_; }
    [[nodiscard]] QFuture<std::optional<HttpReply>> future() const { return promise_.future(); }

    /// libcurl's handle of this transfer; null before it was prepared.
    [[nodiscard]] CURL* handle() const { return handle_.get(); }

    /// Sets up the handle; false when libcurl refuses the request. The time-out starts here.
    bool prepare(const CurlTransportOptions& options);

    /// Looks at the counters; tells when the transfer has failed if nothing moves from now on.
    Moment deadline(Moment now);

    /// How many bytes of the body have gone out.
    [[nodiscard]] qint64 sent() const;

    /// Lets go of the request's bytes and finishes the future: with the reply when libcurl reports
    /// success, else with none. The handle must be taken out of the multi handle afterwards.
    void finish(CURLcode code);

    /// When the progress was told last, and what was told.
    Moment toldAt;
    qint64 told = -1;

private:
    static size_t readBody(char* target, size_t size, size_t count, void* self);
    static int seekBody(void* self, curl_off_t offset, int origin);
    static size_t takeReply(char* bytes, size_t size, size_t count, void* self);
    bool setHeaders();
    [[nodiscard]] std::uint64_t movement() const;

    struct FreeHandle {
        void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
    };
    struct FreeList {
        void operator()(curl_slist* list) const { curl_slist_free_all(list); }
    };

    HttpRequest request_;
    std::uint64_t listener_;
    qint64 total_ = 0;
    qsizetype piece_ = 0;
    qsizetype offset_ = 0;
    HttpReply reply_;
    QPromise<std::optional<HttpReply>> promise_;
    std::unique_ptr<curl_slist, FreeList> headers_;
    std::unique_ptr<CURL, FreeHandle> handle_;
    std::uint64_t movement_ = 0;
    Moment movedAt_;
};

} // namespace quillon
