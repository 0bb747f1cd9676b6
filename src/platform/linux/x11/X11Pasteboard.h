#pragma once

#include "platform/Pasteboard.h"
#include "platform/linux/x11/SelectionReader.h"
#include "platform/linux/x11/X11Connection.h"

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <queue>
#include <thread>

namespace quillon {

/// Reads the CLIPBOARD selection of an X server on a separate thread and connection, so that an
/// owner that hangs never blocks the main thread. Formats are X11 targets.
class X11Pasteboard final : public Pasteboard {
public:
    /// The pasteboard of `display` (null: what $DISPLAY names); null if there is no such display or
    /// its server lacks XFixes.
    [[nodiscard]] static std::unique_ptr<X11Pasteboard> open(const char* display);

    /// Finishes all outstanding futures with empty results.
    ~X11Pasteboard() override;

    [[nodiscard]] std::uint64_t changeCount() const override { return changes_; }
    [[nodiscard]] QFuture<std::vector<std::string>> formats() override;
    [[nodiscard]] QFuture<std::optional<QByteArray>> data(std::string format) override;

private:
    using Job = std::function<void()>;

    explicit X11Pasteboard(std::unique_ptr<X11Connection> connection);
    template <typename T, typename Read>
    QFuture<T> request(Read read);
    std::optional<Job> nextJob();
    void run(const std::stop_token& stop);

    std::unique_ptr<X11Connection> connection_;
    std::atomic<std::uint64_t> changes_ = 0;
    SelectionReader reader_;
    std::mutex mutex_; ///< guards jobs_
    std::queue<Job> jobs_;
    std::jthread thread_;
};

} // namespace quillon
