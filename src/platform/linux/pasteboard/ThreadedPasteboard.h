#pragma once

#include "platform/linux/pasteboard/ClipboardReader.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <queue>
#include <thread>

namespace quillon {

/// Reads the clipboard on a thread of its own, one question after another, so that an owner that
/// hangs never blocks the main thread. When the display goes away, the clipboard is empty, and each
/// later question looks for a display anew.
class ThreadedPasteboard final : public Pasteboard {
public:
    /// Gives a reader for the display that there is now; null if there is none. Called at once, and
    /// later on the reading thread.
    using Opener = std::function<std::unique_ptr<ClipboardReader>(const ReaderHost&)>;

    explicit ThreadedPasteboard(Opener open, ReadingLimits limits = {});
    ThreadedPasteboard(const ThreadedPasteboard&) = delete;
    ThreadedPasteboard& operator=(const ThreadedPasteboard&) = delete;
    /// Finishes all outstanding futures with empty results.
    ~ThreadedPasteboard() override;

    [[nodiscard]] ClipboardWay way() const override { return way_; }
    [[nodiscard]] std::uint64_t changeCount() const override { return changes_; }
    [[nodiscard]] QFuture<std::vector<std::string>> formats() override;
    [[nodiscard]] QFuture<std::optional<QByteArray>> data(std::string format) override;

private:
    using Job = std::function<void(ClipboardReader*)>;

    template <typename T, typename Read>
    QFuture<T> request(Read read);
    std::optional<Job> nextJob();
    void run();
    void openReader();
    void followReader();
    void sleep();

    Bell bell_;
    std::stop_source stop_;
    std::atomic<std::uint64_t> changes_ = 0;
    std::atomic<ClipboardWay> way_ = ClipboardWay::none;
    ReaderHost host_;
    Opener open_;
    std::unique_ptr<ClipboardReader> reader_; ///< null while there is no display
    std::mutex mutex_;                        ///< guards jobs_
    std::queue<Job> jobs_;
    std::thread thread_;
};

} // namespace quillon
