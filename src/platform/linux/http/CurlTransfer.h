#pragma once

#include "platform/linux/http/CurlTransport.h"
#include "platform/linux/http/LibCurl.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>

namespace quillon {

/// One request on its way through libcurl: what all of them have in common. Stays at its address,
/// which libcurl knows.
class CurlTransfer {
public:
    using Moment = std::chrono::steady_clock::time_point;

    /// How many bytes have gone the way that is reported.
    struct Progress {
        qint64 done = 0;
        qint64 total = 0;
    };

    CurlTransfer(const CurlTransfer&) = delete;
    CurlTransfer& operator=(const CurlTransfer&) = delete;
    virtual ~CurlTransfer() = default;

    /// The number of whoever is told the progress; 0 when nobody is.
    [[nodiscard]] std::uint64_t listener() const { return listener_; }

    /// libcurl's handle of this transfer; null before it was prepared.
    [[nodiscard]] CURL* handle() const { return handle_.get(); }

    /// Sets up the handle; false when libcurl refuses the request. The time-out starts here.
    bool prepare(const CurlTransportOptions& options);

    /// Looks at the counters; tells when the transfer has failed if nothing moves from now on.
    Moment deadline(Moment now);

    [[nodiscard]] virtual Progress progress() const = 0;

    /// Whether the transfer is no longer wanted.
    [[nodiscard]] virtual bool isStopped() const { return false; }

    /// Lets go of the request's bytes and finishes the future: with a success only when libcurl
    /// reports one. The handle must be taken out of the multi handle afterwards.
    virtual void finish(CURLcode code) = 0;

    /// When the progress was told last, and what was told.
    Moment toldAt;
    qint64 told = -1;

protected:
    CurlTransfer(std::string url, std::chrono::milliseconds inactivityTimeout,
                 std::uint64_t listener);

    /// Tells libcurl the particulars; false when it refuses them.
    virtual bool describe(const CurlTransportOptions& options) = 0;

    /// Makes it a GET that follows redirects, to https alone, and may be sent in plain http to this
    /// machine itself.
    void fetch(const CurlTransportOptions& options);

    /// 0 when there was no reply.
    [[nodiscard]] long status() const;

private:
    [[nodiscard]] std::uint64_t movement() const;

    struct FreeHandle {
        void operator()(CURL* handle) const { curl().easy_cleanup(handle); }
    };

    std::string url_;
    std::chrono::milliseconds inactivityTimeout_;
    std::uint64_t listener_;
    std::unique_ptr<CURL, FreeHandle> handle_;
    std::uint64_t movement_ = 0;
    Moment movedAt_;
};

} // namespace quillon
