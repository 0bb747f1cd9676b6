#pragma once

#include "analytics/EventQueue.h"
#include "platform/Clock.h"

#include <QCoroTask>

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillon {

struct Platform;

/// Records anonymous usage events in a queue on disk, and delivers them to the makers' server where
/// there is one. Events never hold what was copied: they describe a send by kind, count, outcome
/// and a coarse size. Errors are dropped. Main thread only.
class Analytics {
public:
    /// `quitLimit` is how long the last delivery may hold up the program's end.
    explicit Analytics(const Platform& platform,
                       std::chrono::milliseconds quitLimit = std::chrono::seconds{3});

    /// Records one event; it is on disk when this returns.
    void track(std::string_view name, Props props = {});
    /// Records several events, each its name and properties, with one write to the disk.
    void track(std::vector<std::pair<std::string_view, Props>> events);

    /// The bucket of an item's size in bytes; none from 50,000,000 bytes.
    [[nodiscard]] static std::optional<std::string_view> sizeBucket(std::int64_t bytes);

    /// Ends all recording and delivery for good, before the application's data is removed.
    void stopPersisting();

    /// Records that the application was opened, and from then on a heartbeat every minute and a
    /// delivery every quarter of an hour, the first after a minute. Does nothing the second time.
    void start();

    /// Records "daily_active" unless that was done on this day of the user's time zone.
    void heartbeat();

    /// Delivers the queue in batches, until it is empty or a batch fails, which stays queued. Does
    /// nothing while a delivery is under way. The task need not be kept.
    QCoro::Task<> flushNow();

    /// Delivers one last batch, and blocks for the limit at most. First waits, within these, for a
    /// delivery under way, so that its events are not sent twice.
    void flushBeforeQuit();

    /// The events not yet delivered; read from disk on first use.
    [[nodiscard]] const EventQueue& queue();

private:
    struct Batch;

    EventQueue& loadedQueue();
    void save();

    void armTimer();
    void tick();
    [[nodiscard]] bool canDeliver();
    /// Sends the front of the queue. An empty `accept` leaves that header out.
    [[nodiscard]] Batch post(std::string accept, std::chrono::milliseconds timeout);
    /// Takes a batch that was answered out of the queue, if it was delivered; tells whether it was.
    bool settle(const Batch& batch);

    const Platform& platform_;
    std::chrono::milliseconds quitLimit_;
    std::optional<EventQueue> queue_;
    bool persist_ = true;
    std::unique_ptr<Clock::Timer> timer_;
    /// When the last delivery started.
    std::optional<Clock::Time> lastFlush_;
    /// What flushNow() waits for.
    std::shared_ptr<Batch> inFlight_;
};

} // namespace quillon
