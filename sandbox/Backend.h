// Everything that answers requests: the Bot API over the world, the control pages and the endpoint
// for usage events. Thread-safe.
#pragma once

#include "sandbox/Fault.h"
#include "sandbox/Http.h"
#include "sandbox/RequestLog.h"
#include "sandbox/World.h"

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace quillon::sandbox {

/// A delivery of usage events.
struct EventsRecord {
    std::map<std::string, std::string> headers; ///< names in lower case
    std::string body;
};

class Backend {
public:
    Backend(bool verbose, bool hashFiles) : log{verbose}, hashFiles_{hashFiles} {}

    /// The Bot API method (or "events") that a path asks for; none for the control pages.
    static std::optional<std::string> methodOf(std::string_view path);

    /// Never throws; `faultName` is only recorded.
    HttpReply serve(HttpRequest& request, const std::string& faultName = {});

    /// Records a request that is not carried out; `bodyRead` tells whether its body was read.
    void record(HttpRequest& request, const std::string& faultName, bool bodyRead, int status);

    /// Runs `action` on the world under the lock.
    template <typename Action>
    auto withWorld(const Action& action) {
        const std::lock_guard lock{mutex_};
        const Announcer announcer{changed_};
        return action(world_);
    }

    std::vector<EventsRecord> events();
    void setEventsStatus(int status);

    /// While stopping, a long poll ends at once.
    void setStopping(bool stopping);

    FaultBox faults;
    RequestLog log;
    /// How far the clock that replies tell of is ahead of this computer's, in seconds.
    std::atomic<std::int64_t> clockAhead = 0;

private:
    struct Announcer {
        std::condition_variable& changed;
        ~Announcer() { changed.notify_all(); }
    };

    HttpReply serveBot(HttpRequest& request, RequestRecord& record);
    Json call(HttpRequest& request, RequestRecord& record);
    HttpReply serveEvents(HttpRequest& request);

    bool hashFiles_;
    std::mutex mutex_;
    std::condition_variable changed_;
    bool stopping_ = false;
    World world_;
    std::vector<EventsRecord> events_;
    int eventsStatus_ = 200;
};

} // namespace quillon::sandbox
