#include "platform/linux/http/CurlTransport.h"

#include "platform/linux/http/CurlDownload.h"
#include "platform/linux/http/CurlLook.h"
#include "platform/linux/http/CurlRequest.h"
#include "platform/linux/http/LibCurl.h"

#include <QObject>

#include <algorithm>
#include <csignal>
#include <map>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace quillon {

namespace {

using Moment = CurlTransfer::Moment;

/// The least time between two reports of one transfer's progress.
constexpr std::chrono::milliseconds progressInterval{100};

/// The worker's longest sleep when there is nothing to do.
constexpr std::chrono::milliseconds longestSleep{std::chrono::hours{1}};

/// libcurl may not touch signal handlers and so leaves SIGPIPE to the program. All other signals
/// are for the main thread.
void blockSignals() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, nullptr);
}

} // namespace

/// The listeners to the progress of transfers. Callbacks never leave the transport's thread,
/// because what they capture may belong to it.
class CurlTransport::ProgressListeners : public QObject {
public:
    std::uint64_t add(std::function<void(qint64, qint64)> listener) {
        listeners_.emplace(++lastId_, std::move(listener));
        return lastId_;
    }

    /// Thread-safe.
    void tell(std::uint64_t id, qint64 sent, qint64 total, bool last) {
        QMetaObject::invokeMethod(
            this, [this, id, sent, total, last] { deliver(id, sent, total, last); },
            Qt::QueuedConnection);
    }

private:
    void deliver(std::uint64_t id, qint64 sent, qint64 total, bool last) {
        const auto found = listeners_.find(id);
        if (found == listeners_.end()) return;
        // The listener may destroy the transport, so nothing of it is touched afterwards.
        const auto listener = found->second;
        if (last) listeners_.erase(found);
        listener(sent, total);
    }

    std::map<std::uint64_t, std::function<void(qint64, qint64)>> listeners_;
    std::uint64_t lastId_ = 0;
};

/// The thread that drives all transfers.
class CurlTransport::Worker {
public:
    Worker(CurlTransportOptions options, ProgressListeners& listeners)
        : options_{std::move(options)},
          listeners_{listeners} {}
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    ~Worker() {
        if (!thread_.joinable()) return;
        {
            const std::lock_guard lock{mutex_};
            stopping_ = true;
        }
        wake();
        thread_.join();
    }

    void add(std::unique_ptr<CurlTransfer> transfer) {
        // The thread starts with the first request, which most processes of this program never
        // make.
        if (!thread_.joinable()) thread_ = std::thread{[this] { run(); }};
        std::unique_lock lock{mutex_};
        if (broken_) {
            lock.unlock();
            return transfer->finish(CURLE_FAILED_INIT);
        }
        waiting_.push_back(std::move(transfer));
        lock.unlock();
        wake();
    }

    /// Makes the thread check its transfers. Thread-safe.
    void wake() {
        const std::lock_guard lock{mutex_};
        if (multi_) curl().multi_wakeup(multi_);
    }

private:
    using Transfers = std::vector<std::unique_ptr<CurlTransfer>>;

    void run() {
        blockSignals();
        if (!open()) return;
        while (admit()) {
            int running = 0;
            curl().multi_perform(multi_, &running);
            collect();
            const auto sleep = attend();
            curl().multi_poll(multi_, nullptr, 0, static_cast<int>(sleep.count()), nullptr);
        }
        while (!running_.empty())
            end(*running_.back(), CURLE_ABORTED_BY_CALLBACK);
        close();
    }

    /// False if libcurl cannot be used; then every transfer fails, now and later.
    bool open() {
        CURLM* const multi = loadCurl() ? curl().multi_init() : nullptr;
        Transfers failed;
        {
            const std::lock_guard lock{mutex_};
            multi_ = multi;
            broken_ = !multi;
            if (broken_) failed.swap(waiting_);
        }
        for (const auto& transfer : failed)
            transfer->finish(CURLE_FAILED_INIT);
        return multi;
    }

    void close() {
        std::unique_lock lock{mutex_};
        CURLM* const multi = std::exchange(multi_, nullptr);
        lock.unlock();
        // This writes to connections to close them, so SIGPIPE must be blocked.
        curl().multi_cleanup(multi);
    }

    /// Starts the transfers that were handed over; false if the transport is going away.
    bool admit() {
        Transfers waiting;
        bool stopping = false;
        {
            const std::lock_guard lock{mutex_};
            waiting.swap(waiting_);
            stopping = stopping_;
        }
        for (auto& transfer : waiting) {
            CurlTransfer& started = *running_.emplace_back(std::move(transfer));
            if (stopping) continue;
            if (!started.prepare(options_) ||
                curl().multi_add_handle(multi_, started.handle()) != CURLM_OK)
                end(started, CURLE_FAILED_INIT);
        }
        return !stopping;
    }

    /// Finishes the transfers that libcurl has completed.
    void collect() {
        int left = 0;
        while (const CURLMsg* message = curl().multi_info_read(multi_, &left)) {
            if (message->msg != CURLMSG_DONE) continue;
            const CURLcode code = message->data.result;
            CurlTransfer* transfer = nullptr;
            curl().easy_getinfo(message->easy_handle, CURLINFO_PRIVATE, &transfer);
            curl().multi_remove_handle(multi_, transfer->handle());
            const bool again = transfer->repeat(code) &&
                               curl().multi_add_handle(multi_, transfer->handle()) == CURLM_OK;
            if (!again) end(*transfer, code);
        }
    }

    /// Ends transfers that have timed out or were stopped, and reports progress. Returns how long
    /// the thread can sleep unless there is something on a connection.
    std::chrono::milliseconds attend() {
        const Moment now = std::chrono::steady_clock::now();
        Moment next = now + longestSleep;
        std::vector<CurlTransfer*> expired;
        for (const auto& transfer : running_) {
            const Moment deadline = transfer->deadline(now);
            if (deadline <= now || transfer->isStopped()) expired.push_back(transfer.get());
            next = std::min({next, deadline, tellProgress(*transfer, now)});
        }
        for (CurlTransfer* transfer : expired)
            end(*transfer, CURLE_OPERATION_TIMEDOUT);
        return std::chrono::ceil<std::chrono::milliseconds>(std::max(next - now, {}));
    }

    /// Reports progress, unless that was done a moment ago. Returns when to look again.
    Moment tellProgress(CurlTransfer& transfer, Moment now) {
        if (transfer.listener() == 0) return Moment::max();
        const auto [done, total] = transfer.progress();
        if (done == transfer.told) return Moment::max();
        const Moment due = transfer.toldAt + progressInterval;
        if (due > now) return due;
        transfer.toldAt = now;
        transfer.told = done;
        listeners_.tell(transfer.listener(), done, total, false);
        return Moment::max();
    }

    void end(CurlTransfer& transfer, CURLcode code) {
        if (transfer.listener() != 0) {
            const auto [done, total] = transfer.progress();
            listeners_.tell(transfer.listener(), done, total, true);
        }
        transfer.finish(code);
        if (transfer.handle()) curl().multi_remove_handle(multi_, transfer.handle());
        std::erase_if(running_, [&](const auto& each) { return each.get() == &transfer; });
    }

    CurlTransportOptions options_;
    ProgressListeners& listeners_;
    CURLM* multi_ = nullptr;
    Transfers running_;
    std::mutex mutex_;
    Transfers waiting_;
    bool stopping_ = false;
    bool broken_ = false;
    std::thread thread_;
};

CurlTransport::CurlTransport(CurlTransportOptions options)
    : listeners_{std::make_unique<ProgressListeners>()},
      worker_{std::make_unique<Worker>(std::move(options), *listeners_)} {}

CurlTransport::~CurlTransport() = default;

template <typename Transfer, typename Request>
auto CurlTransport::start(Request request, auto... kind) {
    auto progress = std::exchange(request.progress, nullptr);
    const std::uint64_t listener = progress ? listeners_->add(std::move(progress)) : 0;
    auto transfer = std::make_unique<Transfer>(kind..., std::move(request), listener,
                                               [worker = worker_.get()] { worker->wake(); });
    auto future = transfer->future();
    worker_->add(std::move(transfer));
    return future;
}

QFuture<std::optional<HttpReply>> CurlTransport::post(HttpRequest request) {
    return start<CurlRequest>(std::move(request), CurlRequest::Method::post);
}

QFuture<std::optional<HttpReply>> CurlTransport::get(HttpRequest request) {
    return start<CurlRequest>(std::move(request), CurlRequest::Method::get);
}

QFuture<DownloadOutcome> CurlTransport::download(HttpDownload download) {
    return start<CurlDownload>(std::move(download));
}

QFuture<HttpLook> CurlTransport::look(std::string url, std::chrono::milliseconds limit) {
    return start<CurlLook>(
        CurlLook::Request{.url = std::move(url), .limit = limit, .progress = {}});
}

} // namespace quillon
