#include "analytics/Analytics.h"

#include "base/Bytes.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/Platform.h"
#include "state/DataFile.h"

#include <array>
#include <chrono>

namespace quillon {

namespace {

struct Bucket {
    /// The first byte count too large for the bucket.
    std::int64_t end;
    std::string_view name;
};

constexpr std::array buckets{Bucket{100'000, "lt100k"}, Bucket{1'000'000, "lt1m"},
                             Bucket{10'000'000, "lt10m"}, Bucket{50'000'000, "lt50m"}};

} // namespace

Analytics::Analytics(const Platform& platform, std::chrono::milliseconds quitLimit)
    : platform_{platform},
      quitLimit_{quitLimit} {}

void Analytics::track(std::string_view name, Props props) {
    std::vector<std::pair<std::string_view, Props>> event;
    event.emplace_back(name, std::move(props));
    track(std::move(event));
}

void Analytics::track(std::vector<std::pair<std::string_view, Props>> events) {
    if (!persist_) return;
    const auto now = platform_.clock.now().time_since_epoch();
    const auto at = std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
    for (auto& [name, props] : events)
        loadedQueue().append({.name = std::string{name}, .at = at, .props = std::move(props)});
    save();
}

std::optional<std::string_view> Analytics::sizeBucket(std::int64_t bytes) {
    for (const Bucket& bucket : buckets) {
        if (bytes < bucket.end) return bucket.name;
    }
    return std::nullopt;
}

void Analytics::stopPersisting() {
    persist_ = false;
    timer_.reset(); // a heartbeat would write the preferences anew
}

const EventQueue& Analytics::queue() {
    return loadedQueue();
}

EventQueue& Analytics::loadedQueue() {
    if (!queue_) {
        const auto file = platform_.dataFolder / eventsFile;
        platform_.files.removeLeftovers(file);
        const FileReading reading = platform_.files.read(file, maximumDataFileSize);
        // An unreadable file has no bytes and decodes as an empty queue.
        queue_ = EventQueue::decode(asText(reading.bytes));
    }
    return *queue_;
}

void Analytics::save() {
    if (!persist_ || !queue_) return;
    platform_.files.writeAtomically(platform_.dataFolder / eventsFile,
                                    QByteArray::fromStdString(queue_->encode()));
}

} // namespace quillon
