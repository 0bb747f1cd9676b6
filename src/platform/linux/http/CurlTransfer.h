#pragma once

#include "platform/linux/http/CurlTransport.h"
#include "platform/linux/http/LibCurl.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <stop_token>
#include <string>

namespace quillon {

/// What all transfers through libcurl have in common. Must not be moved, because libcurl knows its
/// address.
class CurlTransfer {
public:
    using Moment = std::chrono::steady_clock::time_point;

    /// Bytes in the direction that is reported.
    struct Progress {
        qint64 done = 0;
        qint64 total = 0;
    };

    CurlTransfer(const CurlTransfer&) = delete;
    CurlTransfer& operator=(const CurlTransfer&) = delete;
    virtual ~CurlTransfer() = default;

    /// The number of the listener to the progress; 0 if there is none.
    [[nodiscard]] std::uint64_t listener() const { return listener_; }

    /// libcurl's handle of this transfer; null before prepare().
    [[nodiscard]] CURL* handle() const { return handle_.get(); }

    /// Sets up the handle; false if libcurl refuses the request. The time-out starts here.
    bool prepare(const CurlTransportOptions& options);

    /// Looks at libcurl's counters. Returns when the transfer will have timed out if nothing moves
    /// from now on.
    Moment deadline(Moment now);

    /// Makes the transfer ready to run once more, if it may after it ended like this. The handle
    /// must be in no multi handle.
    virtual bool repeat(CURLcode /*code*/) { return false; }

    [[nodiscard]] virtual Progress progress() const = 0;

    /// Whether a stop was requested.
    [[nodiscard]] bool isStopped() const { return stop_.stop_requested(); }

    /// Releases the request's bytes and finishes the future, as a success only if libcurl reports
    /// one. The handle must be taken out of the multi handle afterwards.
    virtual void finish(CURLcode code) = 0;

    /// When the progress was last reported, and what was reported.
    Moment toldAt;
    qint64 told = -1;

protected:
    /// `wake` is called, on any thread, when a stop is requested.
    CurlTransfer(std::string url, std::chrono::milliseconds inactivityTimeout,
                 std::uint64_t listener, std::stop_token stop, std::function<void()> wake);

    /// Sets the options of this kind of transfer; false if libcurl refuses them.
    virtual bool describe(const CurlTransportOptions& options) = 0;

    /// Makes the transfer a GET that follows redirects, but only to https. Plain http to this
    /// machine itself is allowed.
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
    std::stop_token stop_;
    std::unique_ptr<CURL, FreeHandle> handle_;
    std::uint64_t movement_ = 0;
    Moment movedAt_;
    std::stop_callback<std::function<void()>> onStop_;
};

} // namespace quillon
