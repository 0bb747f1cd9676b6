#pragma once

#include "analytics/EventQueue.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillon {

struct Platform;

/// Records anonymous usage events in a queue on disk. Never what was copied: a send is described by
/// kind, count, outcome and a coarse size alone. Errors are dropped. Main thread only.
class Analytics {
public:
    explicit Analytics(const Platform& platform);

    /// Records one event; it is on disk when this returns.
    void track(std::string_view name, Props props = {});

    /// The bucket of an item's size in bytes; none from 50,000,000 bytes.
    [[nodiscard]] static std::optional<std::string_view> sizeBucket(std::int64_t bytes);

    /// Ends all recording for good, before the application's data is removed.
    void stopPersisting() { persist_ = false; }

    /// The events not yet delivered; read from disk on first use.
    [[nodiscard]] const EventQueue& queue();

private:
    EventQueue& loadedQueue();
    void save();

    const Platform& platform_;
    std::optional<EventQueue> queue_;
    bool persist_ = true;
};

} // namespace quillon
